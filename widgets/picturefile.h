#pragma once

#include <QImage>

namespace PictureFile {

/// The picture in the file at @p path. Its format is recognised by the content, not by the suffix.
///
/// RuntimeError 53 without the file, 76 without its folder, 75 if it cannot be read, 481 if it is no picture.
QImage load(const QString &path);

} // namespace PictureFile
