#pragma once

#include <QtGlobal>
#include <optional>

/// Tells double clicks on the icon in the notification area, each once.
///
/// Notification areas differ: some tell of a click and then of a double click, others of every click alone.
class TrayDoubleClick final
{
public:
    /// @p interval is the longest time between two clicks of one double click, in milliseconds.
    explicit TrayDoubleClick(int interval) : m_interval(interval) {}

    /// A click at @p now, in milliseconds. True if it is the second of two.
    bool click(qint64 now)
    {
        if (within(m_clicked, now))
            return take(now);
        m_clicked = now;
        return false;
    }

    /// The notification area's own double click at @p now. True unless its clicks were counted already.
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
