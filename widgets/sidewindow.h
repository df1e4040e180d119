#pragma once

#include <QDialog>

class QPushButton;

/// A secondary window of `Form1`, which is disabled while it is open.
///
/// It is made when it is opened and destroyed when it is unloaded, so each opening runs its load anew.
/// Closing it by any route enables `Form1` again. Escape closes it. On a screen too small for it, its
/// contents scroll. A window whose handler waits for a modal dialog rejects the dialog and closes once the
/// handler has returned.
class SideWindow : public QDialog
{
    Q_OBJECT

public:
    /// @p owner is `Form1`; @p name the window's name in the system.
    SideWindow(const char *name, QWidget &owner);

    /// Disables the owner and shows the window in front, without a modal event loop.
    void showAboveOwner();

    void setVisible(bool visible) override;

    void reject() override { close(); }
    void accept() override { close(); }

Q_SIGNALS:
    /// The window is closed and about to be deleted: do not use it any more.
    void unloaded();

protected:
    void closeEvent(QCloseEvent *event) override;

    /// "OK", which Enter presses: accept().
    QPushButton *makeOkButton(const QString &name);

    QWidget &owner() const { return m_owner; }

private:
    void fitToScreen();

    QWidget &m_owner;
};
