#pragma once

#include <QPointer>

namespace vantrix::sdk::ui::dialogs {

/// The one dialog of a class in the process: made by the first call, and again by the first call after it has gone with
/// its parent. For getInstance(), where the constructor can be reached:
///
///     return dialogInstance<PaperSetupDialog>([&parent] { return new PaperSetupDialog(parent); });
template<typename Dialog, typename Maker>
Dialog& dialogInstance(Maker&& make)
{
    static QPointer<Dialog> instance;
    if (!instance) {
        instance = make();
    }
    return *instance;
}

} // namespace vantrix::sdk::ui::dialogs
