#pragma once

#include <QSize>

/// The scale of all windows, in per cent of their normal size.
struct Scale
{
    static constexpr int Least = 75;
    static constexpr int Normal = 100;
    static constexpr int Most = 250;

    int percent = Normal;   ///< of this run
    int byDesktop = Normal; ///< from the desktop's font size

    /// For a desktop font of @p points: 100 up to 10 points, for which the windows are made.
    static int forFontSize(double points);

    /// The next step up or down; unchanged at either end.
    static int larger(int percent);
    static int smaller(int percent);

    /// The largest scale at which a window of normal size @p window fits into @p room.
    static int fitting(QSize window, QSize room);

    /// What a start uses before it knows the desktop: the user's choice or the desktop's last scale.
    static int remembered();

    /// What this run should use: the user's choice or the desktop's scale. Remembers the latter.
    static int chosenOr(int byDesktop);

    /// Remembers the user's choice. Choosing the desktop's scale means following the desktop.
    void choose(int choice) const;
};
