#pragma once

#include <QDialog>

class QPushButton;

/// A secondary window. `Form1` is disabled while it is open.
///
/// It is made for each opening and deleted when it closes, by any route or Escape. On a small screen its
/// contents scroll. If one of its handlers waits for a modal dialog, it rejects the dialog and closes after
/// the handler.
class SideWindow : public QDialog
{
    Q_OBJECT

public:
    /// @p owner is `Form1`.
    SideWindow(const char *name, QWidget &owner);

    /// Shows the window in front, without an event loop of its own.
    void showAboveOwner();

    void setVisible(bool visible) override;

    void reject() override { close(); }
    void accept() override { close(); }

Q_SIGNALS:
    /// The window is closed and about to be deleted.
    void unloaded();

protected:
    void closeEvent(QCloseEvent *event) override;

    /// "OK", the default button; accepts the window.
    QPushButton *makeOkButton(const QString &name);

    QWidget &owner() const { return m_owner; }

private:
    void fitToScreen();

    QWidget &m_owner;
};
