#pragma once

#include <QTabBar>

class QStylePainter;

/// A tab strip that tells of every click, also of one on the tab that is already selected.
///
/// Tabs count from 1 to the outside, as everywhere in the system.
class TabStrip final : public QTabBar
{
    Q_OBJECT

public:
    /// Across the top, or one below the other like the lines of a list, for a narrow column.
    enum Direction { Across, Down };

    /// The first tab is selected from the start, without a click.
    TabStrip(const QString &name, const QStringList &captions, Direction direction, QWidget *parent);

    /// One-based.
    int selectedTab() const { return currentIndex() + 1; }

    /// Selects the tab; a click if it was not selected.
    void selectTab(int tab) { setCurrentIndex(tab - 1); }

Q_SIGNALS:
    /// By mouse, keyboard or selectTab(). One-based.
    void tabClicked(int tab);

protected:
    QSize tabSizeHint(int index) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int captionMargin() const;
    int captionWidth(int index) const;
    bool isDown() const { return shape() == RoundedWest; }
    void paintTab(QStylePainter &painter, int index);
};
