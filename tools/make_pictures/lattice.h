// The unit cells of the crystal structures, as geometry.
#pragma once

#include <QList>
#include <QString>
#include <QVector3D>

/// A unit cell, ready to draw. Lengths are in units of the edge a, points are Cartesian.
struct Lattice
{
    enum class Site { Corner, Centre, Inner, Point };

    struct Sphere
    {
        QVector3D at;
        Site site;
    };

    struct Line
    {
        QVector3D from;
        QVector3D to;
        bool bold; ///< an edge of the cell; the others belong to the surroundings or are bonds
    };

    QString name;
    QString edges;  ///< how a, b and c compare
    QString angles; ///< how α, β and γ compare
    QString note;   ///< what is drawn and what is not
    QVector3D a;
    QVector3D b;
    QVector3D c;
    QList<Sphere> spheres;
    QList<Line> lines;
};

/// All cells that can be drawn, one for each name.
const QList<Lattice> &lattices();
