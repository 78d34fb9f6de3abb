#pragma once
// The value that passes between the grid, its data sources, its cell types and its clients: a
// bag of optional properties, each guarded by one bit of `properties`. A field whose bit is
// clear means nothing, whatever it holds, and every reader goes through the mask. Cells are
// read for display by laying several values over each other with MergeFrom, so that what an
// upper layer leaves unset shows through from the layer below; a merge can add and override a
// property but never take one away.
//
// Conventions of the operations: a setter answers 0 and raises its bit. A getter with an
// out-argument answers 0 and writes it, or answers 1 and leaves it alone when the bit is clear.
// A getter that returns the value answers the property's default when the bit is clear.

#include "platform/afx/CObject.h"
#include "platform/base/WinTypes.h"

#include <cstdint>
#include <memory>
#include <string>

class CPen;
class CFont;
class CBitmap;
class CellHook;
class PackedCell;

enum GridCellProperty : DWORD {
    PropText = 0x1,
    PropMask = 0x2,
    PropLabel = 0x4,
    PropDataType = 0x8,
    PropUserValue = 0x10,
    PropCellType = 0x20,
    PropCellTypeOption = 0x40,
    PropTextColor = 0x80,
    PropBackColor = 0x100,
    PropHiliteTextColor = 0x200,
    PropHiliteBackColor = 0x400,
    PropBorder = 0x800,
    PropBorderPen = 0x1000,
    PropFont = 0x2000,
    PropBitmap = 0x4000,
    PropAlignment = 0x8000,
    PropExtraData = 0x10000,
    PropJoin = 0x20000,
    PropCellHook = 0x200000,
    PropStyleCell = 0x800000,
    PropReadOnly = 0x1000000,
    PropPrecision = 0x2000000,
};

// Kinds of value that `dataType` names for the text.
enum GridCellDataType : WORD {
    CellDataText = 1,
    CellDataNumber = 2,
    CellDataBool = 3,
    CellDataReserved = 4,
    CellDataNumericText = 5,
};

class GridCell : public CObject {
public:
    GridCell();
    ~GridCell() override;
    GridCell(const GridCell&) = delete;
    GridCell& operator=(const GridCell&) = delete;

    int HasProperty(DWORD bits) const { return (properties & bits) != 0; }
    DWORD GetProperties() const { return properties; }
    // Replaces the mask and touches no field: what a field still holds shows again.
    int SetProperties(DWORD bits) {
        properties = bits;
        return 0;
    }
    int ClearProperty(DWORD bit);
    int ClearAll();
    int SetDefaults();

    int MergeFrom(const GridCell& source);
    int MergeInto(GridCell& target) const { return target.MergeFrom(*this); }
    int CopyFrom(const GridCell& source);
    int CopyTo(GridCell& target) const { return target.CopyFrom(*this); }

    int SetText(const std::string& value);
    int AppendText(const std::string& value);
    int GetText(std::string& out) const;
    // Null when the cell has no text.
    const char* GetText() const { return properties & PropText ? text.c_str() : nullptr; }
    int GetTextLength() const { return properties & PropText ? static_cast<int>(text.size()) : 0; }
    int SetMask(const std::string& value);
    int GetMask(std::string& out) const;
    const char* GetMask() const;
    int SetLabel(const std::string& value);
    int GetLabel(std::string& out) const;
    const char* GetLabel() const;

    int SetDataType(WORD value);
    WORD GetDataType() const;
    // The value of six fields that kind 4 was meant to hold was never built: the setter marks
    // the kind in `dataType` without raising its bit and answers 1.
    int SetReservedValue(const std::int32_t (&fields)[6]);

    int SetBool(int value);
    int GetBool() const;
    int SetNumber(double value);
    double GetNumber() const;
    int GetInt(int& out) const;
    int GetLong(LONG& out) const;
    int GetFloat(float& out) const;
    int GetDouble(double& out) const;
    int ParseNumber(const std::string& candidate, double& out) const;
    int ParseBool(const std::string& candidate, int& flag) const;
    int SetPrecision(short value);
    short GetPrecision() const;

    int SetTextColor(COLORREF value);
    COLORREF GetTextColor() const;
    int SetBackColor(COLORREF value);
    COLORREF GetBackColor() const;
    int SetHiliteTextColor(COLORREF value);
    COLORREF GetHiliteTextColor() const;
    int SetHiliteBackColor(COLORREF value);
    COLORREF GetHiliteBackColor() const;

    int SetAlignment(WORD flags);
    WORD GetAlignment() const;
    int SetBorder(WORD flags);
    WORD GetBorder() const;
    int SetBorderPen(CPen* pen);
    CPen* GetBorderPen() const;
    int SetFont(CFont* font);
    CFont* GetFont() const;
    // A null bitmap takes the property away.
    int SetBitmap(CBitmap* bitmap);
    CBitmap* GetBitmap() const;

    int SetReadOnly(int flag);
    int GetReadOnly() const;
    int SetCellType(int id);
    int GetCellType() const;
    int SetCellTypeOption(int value);
    int GetCellTypeOption() const;
    int SetUserValue(int value);
    int GetUserValue() const;

    int SetJoin(short isMain, int colOffset, int rowOffset);
    int GetJoin(short& isMain, int& colOffset, int& rowOffset) const;

    // Releases any old block first; answers the new block, whose bytes are undefined, or null
    // when memory is short, and then the property stays clear.
    void* AllocExtraData(DWORD size);
    int FreeExtraData();
    void* GetExtraData() const;
    DWORD GetExtraSize() const;

    int SetStyleCell(GridCell* cell);
    GridCell* GetStyleCell() const;
    // A null hook is refused with 1.
    int SetCellHook(CellHook* hook);
    CellHook* GetCellHook() const;

private:
    friend class PackedCell;

    void CopyExtraData(const GridCell& source);

    DWORD properties = 0;
    CellHook* cellHook = nullptr;
    GridCell* styleCell = nullptr;
    std::string text;
    std::string mask;
    std::string label;
    WORD dataType = 0;
    std::int32_t readOnly = 0;
    std::int32_t userValue = 0;
    short precision = 0;
    std::int32_t cellTypeId = 0;
    std::int32_t cellTypeOption = 0;
    COLORREF textColor = 0;
    COLORREF backColor = 0;
    COLORREF hiliteTextColor = 0;
    COLORREF hiliteBackColor = 0;
    WORD border = 0;
    CPen* borderPen = nullptr;
    CFont* font = nullptr;
    CBitmap* bitmap = nullptr;
    WORD alignment = 0;
    std::unique_ptr<unsigned char[]> extraData;
    DWORD extraSize = 0;
    short joinIsMain = 0;
    std::int32_t joinRowOffset = 0;
    std::int32_t joinColOffset = 0;
};
