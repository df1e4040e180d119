#pragma once

class QWidget;

/// The message boxes and file dialogs whose exec() runs an event loop inside a handler.
///
/// While one is open anything else may happen: the tray, a second start, the window manager, the end of the
/// session. What happens then must neither open windows that the dialog blocks nor destroy what its handler
/// still uses.
namespace ModalDialogs {

/// Brings the open dialog, if there is one, to the front. False if there is none.
bool raise();

/// Rejects all open dialogs and closes @p window again from the event loop once each of their handlers has
/// returned. False, and nothing happens, if none is open: then @p window may go at once.
bool rejectBeforeClosing(QWidget &window);

} // namespace ModalDialogs
