#pragma once

#include <QtGlobal>
#include <optional>

/// Recognises double clicks on the tray icon. Some trays report a click and then a double click, others only
/// single clicks.
class TrayDoubleClick final
{
public:
    /// @p interval is the maximum time between the two clicks, in milliseconds.
    explicit TrayDoubleClick(int interval) : m_interval(interval) {}

    /// A click at @p now, in milliseconds. True if it is the second of two.
    bool click(qint64 now)
    {
        if (within(m_clicked, now))
            return take(now);
        m_clicked = now;
        return false;
    }

    /// A double click that the tray reports at @p now. False if its clicks already made one.
    bool doubleClick(qint64 now) { return (m_clicked || !within(m_taken, now)) && take(now); }

private:
    bool within(const std::optional<qint64> &since, qint64 now) const
    {
        return since && now - *since <= m_interval;
    }

    bool take(qint64 now)
    {
        m_clicked.reset();
        m_taken = now;
        return true;
    }

    const int m_interval;
    std::optional<qint64> m_clicked;
    std::optional<qint64> m_taken;
};
