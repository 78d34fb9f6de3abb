#include "platform/afx/AfxApp.h"

#include <string>

#include "platform/user/User.h"

namespace {
HINSTANCE resourceHandle = nullptr;
std::string appName = "KERVGRID";
}  // namespace

HINSTANCE AfxGetResourceHandle() { return resourceHandle; }
void AfxSetResourceHandle(HINSTANCE module) { resourceHandle = module; }
const char* AfxGetAppName() { return appName.c_str(); }
void AfxSetAppName(const char* name) { appName = name ? name : ""; }

int AfxMessageBox(const char* text, UINT type) {
    return ::MessageBox(::GetActiveWindow(), text, appName.c_str(), type);
}
