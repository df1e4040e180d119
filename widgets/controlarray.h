#pragma once

#include "core/runtimeerror.h"
#include "widgets/controls.h"

#include <QObject>
#include <map>

/// The controls that are written as one array: "Command8(0)", "Command8(1)".
///
/// An index is part of a control's identity: arrays have gaps, and each pane has its own part of `ListView3`.
/// The controls belong to their parents.
///
/// Invariant: each control has the object name "<array>(<index>)", and no index occurs twice.
template<class W>
class ControlArray final
{
    Q_DISABLE_COPY_MOVE(ControlArray)

public:
    explicit ControlArray(const char *name) : m_name(name) {}

    W &add(int index, W *control)
    {
        Q_ASSERT(!contains(index));
        m_controls.emplace(index, Controls::named(control, Controls::indexedName(m_name, index)));
        return *control;
    }

    /// RuntimeError 9 for an index without a control.
    W &operator[](int index) const
    {
        const auto found = m_controls.find(index);
        if (found == m_controls.end())
            throw RuntimeError(ErrorNumber::Subscript, Controls::indexedName(m_name, index));
        return *found->second;
    }

    bool contains(int index) const { return m_controls.contains(index); }

    /// By rising index.
    auto begin() const { return m_controls.begin(); }
    auto end() const { return m_controls.end(); }

    /// Calls @p handler with the index of the control that emitted @p signal.
    template<class Signal, class Handler>
    void connectEach(Signal signal, const QObject *receiver, Handler handler) const
    {
        for (const auto &[index, control] : m_controls)
            QObject::connect(control, signal, receiver, [handler, index = index] { handler(index); });
    }

private:
    const char *const m_name;
    std::map<int, W *> m_controls;
};
