#include "shell/KervDialog.h"

#include "host/ads/AdsCodes.h"
#include "host/ads/AdsLisp.h"
#include "host/ads/AdsServices.h"
#include "host/doc/AcApDocManager.h"
#include "parcel/CallState.h"
#include "parcel/ParcelDialog.h"
#include "shell/CallArguments.h"
#include "shell/ModuleEntry.h"

namespace {

// The module's resources for the time of the call, so that the dialog's template is found,
// given back on every way out.
class ResourceScope {
public:
    ResourceScope() { acDocManagerPtr()->pushResourceHandle(ModuleResources.moduleResources); }
    ~ResourceScope() { acDocManagerPtr()->popResourceHandle(); }
    ResourceScope(const ResourceScope&) = delete;
    ResourceScope& operator=(const ResourceScope&) = delete;
};

// ActiveDialog names the dialog for exactly as long as it lives.
class ActiveDialogScope {
public:
    explicit ActiveDialogScope(ParcelDialog* dialog) { ActiveDialog = dialog; }
    ~ActiveDialogScope() { ActiveDialog = nullptr; }
    ActiveDialogScope(const ActiveDialogScope&) = delete;
    ActiveDialogScope& operator=(const ActiveDialogScope&) = delete;
};

} // namespace

int KervDialog() {
    ResourceScope resources;
    ParcelDialog dialog(CWnd::FromHandle(adsw_acadMainWnd()));
    ActiveDialogScope active(&dialog);
    ParcelGrid& grid = dialog.grid;

    if (const resbuf* arguments = acedGetArgs()) {
        if (!ReadCallArguments(arguments, CallStores{grid.Layers, grid.UsedFlags, grid.TypeChoices,
                                                     grid.Counts, grid.Rows}))
            return RTERROR;
        grid.MarkUsedLayers();
    } else {
        // No arguments: the last accepted table, or empty stores before the first.
        grid.Layers = LastTable.Layers;
        grid.UsedFlags = LastTable.UsedFlags;
        grid.Counts = LastTable.Counts;
        grid.TypeChoices = LastTable.TypeChoices;
        grid.Rows = LastTable.Rows;
    }

    if (dialog.DoModal() != IDOK) {
        acedRetNil();
        return RTERROR;
    }
    // The OK path rewrote Rows from the accepted table.
    LastTable.TypeChoices = grid.TypeChoices;
    LastTable.Layers = grid.Layers;
    LastTable.UsedFlags = grid.UsedFlags;
    LastTable.Counts = grid.Counts;
    LastTable.Rows = grid.Rows;
    for (HWND host : {adsw_acadDocWnd(), adsw_acadMainWnd()})
        RedrawWindow(host, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    return RTNORM;
}
