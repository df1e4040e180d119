#pragma once

#include "core/desktop.h"

#include <functional>
#include <optional>

struct Module1;

/// A kind of file in the save dialog. A name that ends with the suffix of one of the globs is kept; any other
/// gets the suffix of the first. Suffixes are case-sensitive.
struct SavedKind
{
    QString name;      ///< "Page Web"
    QStringList globs; ///< {"*.htm", "*.html"}
};

/// The save dialog of a window, `CommonDialog1`, with its questions about existing files.
class SaveDialog final
{
    Q_DISABLE_COPY_MOVE(SaveDialog)

public:
    static constexpr int QuestionStyle = Desktop::Warning + Desktop::YesNo;

    SaveDialog(SavedKind kind, Module1 &module, Desktop &desktop)
        : m_kind(std::move(kind)), m_module(module), m_desktop(desktop)
    {}

    /// Repeats the dialog until the chosen file can be written: it does not exist, it is empty, or the user
    /// agrees to replace it and it is neither read-only nor in use. FileName() is its path then. RuntimeError
    /// 32755 if the user cancels.
    ///
    /// The dialog offers the name that @p offeredName returns, or the last chosen name if it returns none.
    void choose(const std::function<std::optional<QString>()> &offeredName,
                int questionStyle = QuestionStyle);

    /// The name that was last chosen or offered.
    const QString &FileName() const { return m_fileName; }

private:
    QString withSuffix(const QString &path) const;
    bool mayReplace(int questionStyle);

    const SavedKind m_kind;
    Module1 &m_module;
    Desktop &m_desktop;
    QString m_fileName;
};
