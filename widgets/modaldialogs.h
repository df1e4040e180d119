#pragma once

class QWidget;

/// Message boxes and file dialogs, whose exec() runs an event loop inside a handler.
///
/// Meanwhile the tray, a second start, the window manager or the end of the session may act. They must
/// neither open windows that the dialog blocks nor destroy what its handler still uses.
namespace ModalDialogs {

/// Brings the open dialog to the front. False if there is none.
bool raise();

/// Rejects all open dialogs and closes @p window from the event loop, after their handlers have returned.
/// False if none is open: then @p window may close at once.
bool rejectBeforeClosing(QWidget &window);

} // namespace ModalDialogs
