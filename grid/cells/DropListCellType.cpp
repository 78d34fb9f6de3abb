#include "grid/cells/DropListCellType.h"

#include "grid/cells/CellTypeGrid.h"
#include "grid/cells/DropListBox.h"
#include "grid/cells/GridCell.h"
#include "platform/afx/CDC.h"
#include "platform/afx/CFont.h"
#include "platform/base/Messages.h"
#include "platform/user/User.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

// Each choice ends with a line feed; what follows the last one is no choice.
std::vector<std::string> SplitChoices(const char* label) {
    std::vector<std::string> choices;
    if (!label) return choices;
    const std::string text = label;
    for (size_t start = 0, end; (end = text.find('\n', start)) != std::string::npos;
         start = end + 1)
        choices.push_back(text.substr(start, end - start));
    return choices;
}

} // namespace

DropListCellType::DropListCellType()
    : arrowWidth(GetSystemMetrics(SM_CXVSCROLL)),
      facePen(PS_SOLID, 1, GetSysColor(COLOR_BTNFACE)),
      faceBrush(GetSysColor(COLOR_BTNFACE)),
      box(std::make_unique<DropListBox>()) {
    overflowAllowed = 0;
}

DropListCellType::~DropListCellType() = default;

const char* DropListCellType::GetName() {
    return "Standard DropList";
}

const unsigned char* DropListCellType::GetTypeTag() {
    static constexpr unsigned char tag[16] = {'K', 'G', 'C', 'T', 'd', 'r', 'o', 'p',
                                              'l', 'i', 's', 't', 0,   0,   0,   1};
    return tag;
}

int DropListCellType::PrepareEditRect(RECT* rect) {
    rect->right -= arrowWidth + 1;
    return 1;
}

int DropListCellType::LeftClick(int col, int row, int isDown, RECT* rect, POINT*) {
    if (!isDown) {
        if (!buttonDown) return 0;
        buttonDown = 0;
        grid->RedrawCell(col, row);
        return 1;
    }
    if ((col != dropCol || row != dropRow) && dropCol != -2) {
        buttonRect = *rect;
        buttonRect.left = rect->right - arrowWidth;
        buttonDown = 1;
        dropCol = col;
        dropRow = row;
        grid->RedrawCell(col, row);
        ShowList();
        return 1;
    }
    // The window goes first: its loss of focus would mark the list as dismissed.
    if (box->GetSafeHwnd()) box->DestroyWindow();
    dropCol = dropRow = -1;
    return 0;
}

int DropListCellType::DoubleClick(int col, int row, RECT* rect, POINT* point) {
    if (point->x <= rect->right - arrowWidth) return 0;
    return LeftClick(col, row, 1, rect, point);
}

int DropListCellType::KeyDown(int, int, UINT* key) {
    if (*key != VK_RETURN && !(*key == VK_DOWN && GetKeyState(VK_CONTROL) < 0)) return 0;
    ShowList();
    *key = 0;
    return 1;
}

int DropListCellType::CharInput(int, int, UINT* character) {
    return *character == 13 || *character == 40 ? 1 : 0;
}

int DropListCellType::MouseMove(int, int, POINT* point, UINT flags) {
    if (!(flags & MK_LBUTTON)) return 1;
    bool inButton = point->x >= buttonRect.left && point->x <= buttonRect.right &&
                    point->y >= buttonRect.top && point->y <= buttonRect.bottom;
    if (inButton != static_cast<bool>(buttonDown)) {
        buttonDown = inButton;
        grid->RedrawCell(dropCol, dropRow);
    }
    return 0;
}

void DropListCellType::NotifyLeave(int, int, GridCell*) {
    dropCol = -1;
    dropRow = -1;
}

void DropListCellType::Draw(CDC* dc, RECT* rect, int col, int row, GridCell& cell, int selected,
                            int current) {
    if (cell.GetCellTypeOption() & OptionButtonOnCurrent && !current) {
        CellType::Draw(dc, rect, col, row, cell, selected, 0);
        return;
    }
    RECT inner;
    DrawCellBorder(dc, *rect, &inner, cell);
    RECT button = inner;
    button.left = button.right - arrowWidth;

    GridCell frame;
    frame.SetBorder(buttonDown && current ? 0x1000 : 0x2000);
    RECT face;
    DrawCellBorder(dc, button, &face, frame);
    dc->FillRect(&face, &faceBrush);

    CPen* entryPen = dc->SelectObject(&facePen);
    dc->MoveTo(button.left - 1, button.top);
    dc->LineTo(button.left - 1, button.bottom);
    dc->SelectStockObject(BLACK_PEN);
    const int x = (arrowWidth - 5) / 2 + button.left;
    const int y = (button.bottom - button.top - 3) / 2 + button.top;
    for (int i = 0; i < 3; ++i) {
        dc->MoveTo(x + i, y + i);
        dc->LineTo(x + 5 - i, y + i);
    }
    dc->SelectObject(entryPen);

    // The text keeps the cell's left edge as it was before the border.
    RECT text{rect->left, inner.top, button.left - 1, inner.bottom};
    DrawCellText(dc, &text, 0, col, row, cell, selected, current);
}

int DropListCellType::ShowList() {
    if (box->showing) return 1;
    dropCol = grid->GetCurrentCol();
    dropRow = grid->GetCurrentRow();
    GridCell cell;
    grid->GetEffectiveCell(dropCol, dropRow, cell);
    std::vector<std::string> choices = SplitChoices(cell.GetLabel());
    grid->NotifyCellTypeEvent(GetTypeId(), dropCol, dropRow, EventDropping,
                              reinterpret_cast<LPARAM>(&choices));

    CFont* font = cell.HasProperty(PropFont) && cell.GetFont() ? cell.GetFont()
                                                                : grid->GetDefaultFont();
    int fontHeight = 12;
    LOGFONT lf;
    if (font && font->GetLogFont(&lf)) fontHeight = std::abs(static_cast<int>(lf.lfHeight));

    // Under the cell, as wide as the cell, and tall enough for up to eight choices and a row.
    RECT cellRect;
    grid->GetJoinedCellRect(dropCol, dropRow, &cellRect);
    const int rows = std::min(static_cast<int>(choices.size()), 8) + 1;
    RECT list{cellRect.left, cellRect.bottom, cellRect.right,
              cellRect.bottom + static_cast<LONG>(fontHeight * 1.5 * rows)};
    // Kept inside the view: moved up or left by what overhangs, but never past the top or
    // left edge.
    CWnd* view = grid->GetCellView();
    RECT client;
    view->GetClientRect(&client);
    if (list.bottom > client.bottom) {
        list.top = std::max<LONG>(0, list.top - (list.bottom - client.bottom));
        list.bottom = client.bottom;
    }
    if (list.right > client.right) {
        list.left = std::max<LONG>(0, list.left - (list.right - client.right));
        list.right = client.right;
    }

    box->grid = grid;
    box->typeId = GetTypeId();
    box->Create(WS_CHILD | WS_BORDER | WS_VSCROLL, list, view, 123);
    if (font) box->SetFont(font, TRUE);
    box->MoveWindow(&list);
    for (const std::string& choice : choices) box->AddString(choice.c_str());
    box->colPtr = &dropCol;
    box->rowPtr = &dropRow;
    box->ShowWindow(SW_SHOW);
    box->SetFocus();
    buttonDown = 0;
    grid->RedrawCell(dropCol, dropRow);
    return 0;
}
