#include "widgets/picturefile.h"

#include "core/fileerrors.h"

#include <QImageReader>

QImage PictureFile::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw FileErrors::of(file);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    QImage picture = reader.read();
    if (picture.isNull())
        throw RuntimeError(ErrorNumber::InvalidPicture, path);
    return picture;
}
