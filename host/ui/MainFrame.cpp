#include "host/ui/MainFrame.h"

#include "platform/gdi/Gdi.h"
#include "platform/user/User.h"

namespace host {

namespace {

constexpr const char* MainClass = "AcadMainFrame";
constexpr const char* DocumentClass = "AcadDrawing";
// The drawing area's dark background, as the host shows model space.
constexpr COLORREF DrawingBackground = RGB(33, 40, 48);

} // namespace

MainFrame::MainFrame(const std::string& drawingName, const RECT& area)
    : drawingBrush(CreateSolidBrush(DrawingBackground)) {
    WNDCLASS mainClass;
    mainClass.lpfnWndProc = MainProc;
    mainClass.hbrBackground = GetSysColorBrush(COLOR_APPWORKSPACE);
    mainClass.lpszClassName = MainClass;
    RegisterClass(&mainClass);
    WNDCLASS documentClass;
    documentClass.lpfnWndProc = DefWindowProc;
    documentClass.hbrBackground = drawingBrush;
    documentClass.lpszClassName = DocumentClass;
    RegisterClass(&documentClass);

    const std::string caption = "AutoCAD - [" + drawingName + "]";
    main = CreateWindowEx(0, MainClass, caption.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                          area.left, area.top, RectWidth(area), RectHeight(area), nullptr, nullptr,
                          nullptr, nullptr);
    RECT client{};
    GetClientRect(main, &client);
    document = CreateWindowEx(0, DocumentClass, drawingName.c_str(), WS_CHILD | WS_VISIBLE, 0, 0,
                              RectWidth(client), RectHeight(client), main, MenuFromId(DocumentId),
                              nullptr, nullptr);
    ShowWindow(main, SW_SHOW);
    UpdateWindow(main);
}

MainFrame::~MainFrame() {
    DestroyWindow(main);
    UnregisterClass(DocumentClass, nullptr);
    UnregisterClass(MainClass, nullptr);
    DeleteObject(drawingBrush);
}

LRESULT MainFrame::MainProc(HWND hwnd, UINT msg, WPARAM wParam, LPARAM lParam) {
    switch (msg) {
    case WM_SIZE:
        if (HWND document = GetDlgItem(hwnd, DocumentId))
            MoveWindow(document, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
        return 0;
    case WM_CLOSE: return 0;
    default: return DefWindowProc(hwnd, msg, wParam, lParam);
    }
}

} // namespace host
