#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

/// A ring around the control with the focus: styles mark some faintly, others not at all. Push buttons have a
/// mark of the style's own, or of ours.
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

    QPointer<Ring> m_ring; ///< goes with the control that it is around
};
