#include "grid/cells/GridCell.h"

#include "platform/user/User.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

// atoi and atol of the platform, whose long has 32 bits: out-of-range values stop at the limits.
std::int32_t ParseInt32(const std::string& text) {
    long long v = std::strtoll(text.c_str(), nullptr, 10);
    if (v > INT32_MAX) return INT32_MAX;
    if (v < INT32_MIN) return INT32_MIN;
    return static_cast<std::int32_t>(v);
}

std::string FormatNumber(double value, bool hasPrecision, int precision) {
    // "%lf", or "%1.<precision>lf". A negative precision would make a format that the runtime
    // library can't print; it prints no decimals instead.
    int decimals = hasPrecision ? (precision < 0 ? 0 : precision) : 6;
    int width = hasPrecision ? 1 : 0;
    char buffer[64];
    int size = std::snprintf(buffer, sizeof buffer, "%*.*f", width, decimals, value);
    if (size < static_cast<int>(sizeof buffer)) return std::string(buffer, size > 0 ? size : 0);
    std::string out(static_cast<unsigned>(size), '\0');
    std::snprintf(out.data(), out.size() + 1, "%*.*f", width, decimals, value);
    return out;
}

} // namespace

GridCell::GridCell() {
    ClearAll();
}

GridCell::~GridCell() = default;

int GridCell::ClearProperty(DWORD bit) {
    properties &= ~bit;
    return 0;
}

int GridCell::ClearAll() {
    properties = 0;
    text.clear();
    label.clear();
    userValue = -1;
    cellTypeId = -1;
    cellTypeOption = -1;
    joinRowOffset = -1;
    joinColOffset = -1;
    if (extraData) {
        extraData.reset();
        extraSize = 0;
    } else {
        extraSize = static_cast<DWORD>(-1);
    }
    return 0;
}

int GridCell::SetDefaults() {
    properties = PropText | PropMask | PropLabel | PropTextColor | PropBackColor |
                 PropHiliteTextColor | PropHiliteBackColor | PropAlignment;
    text.clear();
    mask.clear();
    label.clear();
    cellHook = nullptr;
    styleCell = nullptr;
    textColor = GetSysColor(COLOR_WINDOWTEXT);
    backColor = GetSysColor(COLOR_WINDOW);
    hiliteTextColor = GetSysColor(COLOR_HIGHLIGHTTEXT);
    hiliteBackColor = GetSysColor(COLOR_HIGHLIGHT);
    alignment = 0;
    return 0;
}

void GridCell::CopyExtraData(const GridCell& source) {
    extraData.reset();
    extraSize = 0;
    if (!source.extraData) return;
    extraData.reset(new (std::nothrow) unsigned char[source.extraSize]);
    if (!extraData) return;
    extraSize = source.extraSize;
    std::memcpy(extraData.get(), source.extraData.get(), extraSize);
}

int GridCell::MergeFrom(const GridCell& source) {
    if (&source == this) return 0;
    DWORD bits = source.properties;
    properties |= bits;
    if (bits & PropText) text = source.text;
    if (bits & PropMask) mask = source.mask;
    if (bits & PropLabel) label = source.label;
    if (bits & PropDataType) dataType = source.dataType;
    if (bits & PropUserValue) userValue = source.userValue;
    if (bits & PropCellType) cellTypeId = source.cellTypeId;
    if (bits & PropCellTypeOption) cellTypeOption = source.cellTypeOption;
    if (bits & PropTextColor) textColor = source.textColor;
    if (bits & PropBackColor) backColor = source.backColor;
    if (bits & PropHiliteTextColor) hiliteTextColor = source.hiliteTextColor;
    if (bits & PropHiliteBackColor) hiliteBackColor = source.hiliteBackColor;
    if (bits & PropBorder) border = source.border;
    if (bits & PropBorderPen) borderPen = source.borderPen;
    if (bits & PropFont) font = source.font;
    if (bits & PropBitmap) bitmap = source.bitmap;
    if (bits & PropAlignment) alignment = source.alignment;
    if (bits & PropExtraData) CopyExtraData(source);
    if (bits & PropJoin) {
        joinIsMain = source.joinIsMain;
        joinColOffset = source.joinColOffset;
        joinRowOffset = source.joinRowOffset;
    }
    if (bits & PropCellHook) cellHook = source.cellHook;
    if (bits & PropStyleCell) styleCell = source.styleCell;
    if (bits & PropReadOnly) readOnly = source.readOnly;
    if (bits & PropPrecision) precision = source.precision;
    return 0;
}

int GridCell::CopyFrom(const GridCell& source) {
    if (&source == this) return 0;
    properties = source.properties;
    return MergeFrom(source);
}

int GridCell::SetText(const std::string& value) {
    text = value;
    dataType = CellDataText;
    properties |= PropText | PropDataType;
    return 0;
}

// Appends to what the field holds, also behind a clear bit, as the original value did.
int GridCell::AppendText(const std::string& value) {
    text += value;
    dataType = CellDataText;
    properties |= PropText | PropDataType;
    return 0;
}

int GridCell::GetText(std::string& out) const {
    if (!(properties & PropText)) return 1;
    out = text;
    return 0;
}

int GridCell::SetMask(const std::string& value) {
    mask = value;
    properties |= PropMask;
    return 0;
}

int GridCell::GetMask(std::string& out) const {
    if (!(properties & PropMask)) return 1;
    out = mask;
    return 0;
}

const char* GridCell::GetMask() const {
    return properties & PropMask ? mask.c_str() : nullptr;
}

int GridCell::SetLabel(const std::string& value) {
    label = value;
    properties |= PropLabel;
    return 0;
}

int GridCell::GetLabel(std::string& out) const {
    if (!(properties & PropLabel)) return 1;
    out = label;
    return 0;
}

const char* GridCell::GetLabel() const {
    return properties & PropLabel ? label.c_str() : nullptr;
}

int GridCell::SetDataType(WORD value) {
    dataType = value;
    properties |= PropDataType;
    return 0;
}

WORD GridCell::GetDataType() const {
    return properties & PropDataType ? dataType : WORD{CellDataText};
}

int GridCell::SetReservedValue(const std::int32_t (&)[6]) {
    dataType = CellDataReserved;
    return 1;
}

int GridCell::SetBool(int value) {
    text.assign(1, value ? '1' : '0');
    dataType = CellDataBool;
    properties |= PropText | PropDataType;
    return 0;
}

int GridCell::GetBool() const {
    if (!(properties & PropText) || text.empty()) return 0;
    if (text[0] == 'T' || text[0] == 't') return 1;
    return ParseInt32(text) != 0;
}

int GridCell::SetNumber(double value) {
    text = FormatNumber(value, properties & PropPrecision, precision);
    dataType = CellDataNumber;
    properties |= PropText | PropDataType;
    return 0;
}

double GridCell::GetNumber() const {
    return properties & PropText ? std::strtod(text.c_str(), nullptr) : 0.0;
}

int GridCell::GetInt(int& out) const {
    if (!(properties & PropText)) return 1;
    out = ParseInt32(text);
    return 0;
}

int GridCell::GetLong(LONG& out) const {
    if (!(properties & PropText)) return 1;
    out = ParseInt32(text);
    return 0;
}

int GridCell::GetFloat(float& out) const {
    if (!(properties & PropText)) return 1;
    out = static_cast<float>(std::strtod(text.c_str(), nullptr));
    return 0;
}

int GridCell::GetDouble(double& out) const {
    if (!(properties & PropText)) return 1;
    out = std::strtod(text.c_str(), nullptr);
    return 0;
}

// Keeps the digits, the first point and the minus signs of free text, and from the point on
// only as many characters, the point included, as the precision allows.
int GridCell::ParseNumber(const std::string& candidate, double& out) const {
    int budget = properties & PropPrecision ? precision : 0;
    bool seenPoint = false;
    std::string kept;
    for (char c : candidate) {
        bool digitOrMinus = (c >= '0' && c <= '9') || c == '-';
        if (c == '.') {
            if (seenPoint) continue;
            seenPoint = true;
        } else if (!digitOrMinus) {
            continue;
        }
        if (seenPoint) {
            if (budget <= 0) continue;
            --budget;
        }
        kept += c;
    }
    out = std::strtod(kept.c_str(), nullptr);
    return 0;
}

int GridCell::ParseBool(const std::string& candidate, int& flag) const {
    char first = candidate.empty() ? '\0' : candidate[0];
    flag = !(first == '0' || first == 'F' || first == 'f');
    return 0;
}

int GridCell::SetPrecision(short value) {
    precision = value;
    properties |= PropPrecision;
    return 0;
}

short GridCell::GetPrecision() const {
    return properties & PropPrecision ? precision : 0;
}

int GridCell::SetTextColor(COLORREF value) {
    textColor = value;
    properties |= PropTextColor;
    return 0;
}

COLORREF GridCell::GetTextColor() const {
    return properties & PropTextColor ? textColor : GetSysColor(COLOR_WINDOWTEXT);
}

int GridCell::SetBackColor(COLORREF value) {
    backColor = value;
    properties |= PropBackColor;
    return 0;
}

COLORREF GridCell::GetBackColor() const {
    return properties & PropBackColor ? backColor : GetSysColor(COLOR_WINDOW);
}

int GridCell::SetHiliteTextColor(COLORREF value) {
    hiliteTextColor = value;
    properties |= PropHiliteTextColor;
    return 0;
}

COLORREF GridCell::GetHiliteTextColor() const {
    return properties & PropHiliteTextColor ? hiliteTextColor : GetSysColor(COLOR_HIGHLIGHTTEXT);
}

int GridCell::SetHiliteBackColor(COLORREF value) {
    hiliteBackColor = value;
    properties |= PropHiliteBackColor;
    return 0;
}

COLORREF GridCell::GetHiliteBackColor() const {
    return properties & PropHiliteBackColor ? hiliteBackColor : GetSysColor(COLOR_HIGHLIGHT);
}

int GridCell::SetAlignment(WORD flags) {
    alignment = flags;
    properties |= PropAlignment;
    return 0;
}

WORD GridCell::GetAlignment() const {
    return properties & PropAlignment ? alignment : 0;
}

int GridCell::SetBorder(WORD flags) {
    border = flags;
    properties |= PropBorder;
    return 0;
}

WORD GridCell::GetBorder() const {
    return properties & PropBorder ? border : 0;
}

int GridCell::SetBorderPen(CPen* pen) {
    borderPen = pen;
    properties |= PropBorderPen;
    return 0;
}

CPen* GridCell::GetBorderPen() const {
    return properties & PropBorderPen ? borderPen : nullptr;
}

int GridCell::SetFont(CFont* value) {
    font = value;
    properties |= PropFont;
    return 0;
}

CFont* GridCell::GetFont() const {
    return properties & PropFont ? font : nullptr;
}

int GridCell::SetBitmap(CBitmap* value) {
    bitmap = value;
    if (value)
        properties |= PropBitmap;
    else
        properties &= ~PropBitmap;
    return 0;
}

CBitmap* GridCell::GetBitmap() const {
    return properties & PropBitmap ? bitmap : nullptr;
}

int GridCell::SetReadOnly(int flag) {
    readOnly = flag != 0;
    properties |= PropReadOnly;
    return 0;
}

int GridCell::GetReadOnly() const {
    return properties & PropReadOnly ? readOnly : 0;
}

int GridCell::SetCellType(int id) {
    cellTypeId = id;
    properties |= PropCellType;
    return 0;
}

int GridCell::GetCellType() const {
    return properties & PropCellType ? cellTypeId : 0;
}

int GridCell::SetCellTypeOption(int value) {
    cellTypeOption = value;
    properties |= PropCellTypeOption;
    return 0;
}

int GridCell::GetCellTypeOption() const {
    return properties & PropCellTypeOption ? cellTypeOption : 0;
}

int GridCell::SetUserValue(int value) {
    userValue = value;
    properties |= PropUserValue;
    return 0;
}

int GridCell::GetUserValue() const {
    return properties & PropUserValue ? userValue : 0;
}

int GridCell::SetJoin(short isMain, int colOffset, int rowOffset) {
    joinIsMain = isMain;
    joinColOffset = colOffset;
    joinRowOffset = rowOffset;
    properties |= PropJoin;
    return 0;
}

int GridCell::GetJoin(short& isMain, int& colOffset, int& rowOffset) const {
    if (!(properties & PropJoin)) return 1;
    isMain = joinIsMain;
    colOffset = joinColOffset;
    rowOffset = joinRowOffset;
    return 0;
}

void* GridCell::AllocExtraData(DWORD size) {
    FreeExtraData();
    extraData.reset(new (std::nothrow) unsigned char[size]);
    if (!extraData) return nullptr;
    extraSize = size;
    properties |= PropExtraData;
    return extraData.get();
}

int GridCell::FreeExtraData() {
    properties &= ~PropExtraData;
    extraData.reset();
    extraSize = 0;
    return 0;
}

void* GridCell::GetExtraData() const {
    return properties & PropExtraData ? extraData.get() : nullptr;
}

DWORD GridCell::GetExtraSize() const {
    return properties & PropExtraData ? extraSize : 0;
}

int GridCell::SetStyleCell(GridCell* cell) {
    styleCell = cell;
    properties |= PropStyleCell;
    return 0;
}

GridCell* GridCell::GetStyleCell() const {
    return properties & PropStyleCell ? styleCell : nullptr;
}

int GridCell::SetCellHook(CellHook* hook) {
    if (!hook) return 1;
    cellHook = hook;
    properties |= PropCellHook;
    return 0;
}

CellHook* GridCell::GetCellHook() const {
    return properties & PropCellHook ? cellHook : nullptr;
}
