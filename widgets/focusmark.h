#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// A ring around the control with the focus, because styles mark it faintly or not at all. Push buttons have
/// their own mark.
///
/// One object serves all windows.
class FocusMark final : public QObject
{
    Q_OBJECT

public:
    FocusMark();
    ~FocusMark() override;

private:
    class Ring;

    void moveTo(QWidget *control);

    QPointer<Ring> m_ring; ///< child of the control, and deleted with it
};
