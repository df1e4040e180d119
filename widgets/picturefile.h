#pragma once

#include <QImage>

/// Pictures are loaded by path at the moment they are shown.
namespace PictureFile {

/// The picture in the file at @p path, told by its content, not by its suffix.
///
/// RuntimeError 53 if there is no such file, 76 no such folder, 75 if it cannot be read, 481 if it holds no
/// picture.
QImage load(const QString &path);

} // namespace PictureFile
