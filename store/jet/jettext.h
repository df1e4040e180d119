#pragma once

#include "store/jet/jetdefinition.h"

#include <QString>

/// Converts cells of a Jet 4 file to text.
///
/// Texts stay as they are. Other types are formatted as on the original platform: numbers in
/// the user's locale without group separators (a Single with 7 significant digits, a Double with 15), "True"
/// or "False", dates in the short form of the locale. RuntimeError TypeMismatch for a type that has no text
/// (Binary, Ole and unknown ones), DatabaseFailure on damage.
class JetTexts final
{
public:
    explicit JetTexts(const JetPages &pages) : m_pages(pages) {}

    /// Appends @p cell to @p text. The cell is not Null and not a Boolean, which has no bytes.
    void append(const JetColumn &column, JetBytes cell, QString &text);

    static QString fromBoolean(bool value);

private:
    QByteArray longValue(JetBytes cell);

    const JetPages &m_pages;
};
