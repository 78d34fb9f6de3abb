#include "host/ads/AdsServices.h"

#include "host/ads/AdsCodes.h"
#include "host/lisp/UpperCase.h"
#include "host/session/Host.h"
#include "host/ui/FileChooser.h"
#include "platform/user/User.h"

#include <cstdlib>
#include <cstring>

extern "C" int acedAlert(const char* text) {
    host::Host* current = host::Host::Current();
    if (!current || !text) return RTERROR;
    current->Events().Alert(text);
    MessageBox(current->DialogOwner(), text, "AutoCAD", MB_OK);
    current->Events().AlertDone();
    return RTNORM;
}

extern "C" int acedGetVar(const char* name, resbuf* result) {
    host::Host* current = host::Host::Current();
    if (!result) return RTERROR;
    result->restype = RTNONE;
    if (!current || !name) return RTERROR;
    const std::string variable = host::UpperCase(name);
    const host::Drawing& drawing = current->CurrentDrawing();
    const std::string* value = variable == "DWGPREFIX" ? &drawing.Prefix()
                               : variable == "DWGNAME" ? &drawing.Name()
                                                       : nullptr;
    if (!value) return RTERROR;
    result->resval.rstring = strdup(value->c_str());
    if (!result->resval.rstring) return RTERROR;
    result->restype = RTSTR;
    return RTNORM;
}

extern "C" int acedGetFileD(const char* title, const char* defaultName, const char* ext, int flags,
                            resbuf* result) {
    host::Host* current = host::Host::Current();
    if (!result) return RTERROR;
    result->restype = RTNONE;
    if (!current) return RTERROR;
    const host::FileChooser chooser(title, defaultName, ext, flags);
    return chooser.Run(current->DialogOwner(), current->CurrentDrawing().Prefix(), result);
}

extern "C" void acdbFail(const char* text) {
    if (host::Host* current = host::Host::Current(); current && text) current->Events().Fail(text);
}

HWND adsw_acadMainWnd() {
    host::Host* current = host::Host::Current();
    return current ? current->MainWindow() : nullptr;
}

HWND adsw_acadDocWnd() {
    host::Host* current = host::Host::Current();
    return current ? current->DocWindow() : nullptr;
}
