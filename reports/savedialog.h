#pragma once

#include "core/desktop.h"

#include <functional>
#include <optional>

struct Module1;

/// A file type of the save dialog. A name without the suffix of one of the globs gets that of the first.
/// Suffixes are case-sensitive.
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

    /// Repeats the dialog until the chosen file does not exist, is empty, or the user agrees to replace it
    /// and it is neither read-only nor in use. Then FileName() is its path. RuntimeError 32755 if the user
    /// cancels.
    ///
    /// The dialog offers the name from @p offeredName or, if there is none, the last chosen name.
    void choose(const std::function<std::optional<QString>()> &offeredName,
                int questionStyle = QuestionStyle);

    /// The name last chosen or offered.
    const QString &FileName() const { return m_fileName; }

    static QString readOnlyMessage(const QString &path);

private:
    QString withSuffix(const QString &path) const;
    bool mayReplace(int questionStyle);

    const SavedKind m_kind;
    Module1 &m_module;
    Desktop &m_desktop;
    QString m_fileName;
};
