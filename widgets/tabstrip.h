#pragma once

#include <QTabBar>

/// A tab strip that reports every click, even on the selected tab. Tabs count from 1.
class TabStrip final : public QTabBar
{
    Q_OBJECT

public:
    /// Across the top, or in a narrow column like the lines of a list.
    enum Direction { Across, Down };

    /// The first tab is selected, without a click.
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
    class Style;

    int captionMargin() const;
    bool isDown() const { return shape() == RoundedWest; }
};
