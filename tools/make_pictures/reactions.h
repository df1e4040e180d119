// orga/: the equation and the mechanism of each named reaction.
#pragma once

class PictureFolder;
class QString;

/// Draws "<row>.gif", the equation with its conditions, and "<row>m.gif", the steps of the mechanism with
/// what happens in each. The pane does not scroll these pictures: each is drawn as large as its visible part
/// allows.
void drawReactions(const QString &data, const PictureFolder &pictures);
