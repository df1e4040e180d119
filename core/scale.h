#pragma once

#include <QSize>

/// How large the program is: one scale for all of its windows, in per cent of their normal size.
struct Scale
{
    static constexpr int Least = 75;
    static constexpr int Normal = 100;
    static constexpr int Most = 250;

    int percent = Normal;   ///< of this run
    int byDesktop = Normal; ///< what the size of the desktop's type asks for

    /// For a desktop that writes in @p points: windows are made for 10 points, and up to that they are
    /// normal.
    static int ofType(double points);

    /// The next step up or down; the same at the end.
    static int larger(int percent);
    static int smaller(int percent);

    /// The largest at which a window of that normal size fits into @p room.
    static int fitting(QSize window, QSize room);

    /// What the next start takes before it knows the desktop: the user's choice, or what the desktop asked
    /// for the last time.
    static int remembered();

    /// What this run should have: the user's choice, or what the desktop asks for now, which is remembered.
    static int wanted(int byDesktop);

    /// Remembers the user's choice. The one that the desktop asks for goes on following the desktop.
    void choose(int choice) const;
};
