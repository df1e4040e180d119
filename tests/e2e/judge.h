#pragma once

#include <QHash>
#include <QStringList>

class QComboBox;
class QImage;
class QWidget;
struct PaintedText;

/// Looks at windows and writes down what no user should see: texts that are cut, covered, too near to one
/// another or too pale, values of which half is missing, controls beyond their place.
class Judge final
{
public:
    /// Judges @p window and all in it as it stands.
    void look(QWidget &window);

    /// Judges whether @p control shows that it has the keyboard.
    void lookAtFocus(QWidget &control);

    /// What @p window and all in it paint, in the order of painting.
    static QStringList textsOf(QWidget &window);

    /// What was found since the last time, each once.
    QStringList takeFindings();

private:
    bool isOutOfSight(const PaintedText &text, const QWidget &window);
    void lookAtText(const PaintedText &text, QWidget &window, const QImage &picture);
    void lookAtNeighbours(const QList<PaintedText> &texts, const QWidget &window);
    void lookAtChildren(QWidget &window, const QImage &picture);
    void lookAtBox(const QComboBox &box);
    void lookAtEdge(const QWidget &field, const QWidget &window, const QImage &picture);
    void report(const QString &what, const QString &text, const QWidget &where);

    QStringList m_found;
    QHash<const QWidget *, QStringList> m_shortened; ///< cells of a view, in one look
};
