#pragma once

#include "core/desktop.h"

#include <functional>
#include <optional>

struct Module1;

/// A kind of file in the save dialog. A name that ends in the suffix of one of the globs stays as it is, any
/// other gets the suffix of the first; case counts.
struct SavedKind
{
    QString name;      ///< "Page Web"
    QStringList globs; ///< {"*.htm", "*.html"}
};

/// The save dialog of a window, `CommonDialog1`, with the questions about a file that is there already.
class SaveDialog final
{
    Q_DISABLE_COPY_MOVE(SaveDialog)

public:
    static constexpr int QuestionStyle = Desktop::Warning + Desktop::YesNo;

    SaveDialog(SavedKind kind, Module1 &module, Desktop &desktop)
        : m_kind(std::move(kind)), m_module(module), m_desktop(desktop)
    {}

    /// Shows the dialog again and again until its file may be written: there is none, it is empty, or the
    /// user agrees to replace it and it is neither read-only nor in use. The path is FileName() then.
    /// Cancelling is the only other way out: RuntimeError 32755.
    ///
    /// Each showing offers the name that @p offeredName gives, or, if it gives none, the name chosen last.
    void choose(const std::function<std::optional<QString>()> &offeredName,
                int questionStyle = QuestionStyle);

    /// What was chosen or offered last.
    const QString &FileName() const { return m_fileName; }

private:
    QString withSuffix(const QString &path) const;
    bool mayReplace(int questionStyle);

    const SavedKind m_kind;
    Module1 &m_module;
    Desktop &m_desktop;
    QString m_fileName;
};
