#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

/// What the reader and the writer of Jet 4 files (.mdb of Access 2000 to 2003) share. Numbers in a file are
/// little-endian, offsets are in bytes.
namespace Jet {

inline constexpr int PageSize = 4096;

enum PageType : quint8 {
    HeaderPage = 0,
    DataPage = 1,
    DefinitionPage = 2,
    IndexLeafPage = 4,
    BitmapPage = 5
};

/// Column types.
enum class Type : quint8 {
    Boolean = 0x01,
    Byte = 0x02,
    Int16 = 0x03,
    Int32 = 0x04,
    Currency = 0x05, ///< whole number of ten-thousandths
    Single = 0x06,
    Double = 0x07,
    Date = 0x08, ///< days since 1899-12-30, the time of day as fraction
    Binary = 0x09,
    Text = 0x0A,
    Ole = 0x0B,
    Memo = 0x0C,
    Guid = 0x0F,
    Decimal = 0x10,
};

/// Flags of a column entry.
enum ColumnFlag : quint8 { FixedLength = 0x01, Nullable = 0x02, SystemColumn = 0x10 };

/// Extended flag of a column: its texts may be stored packed.
inline constexpr quint8 PackedText = 0x01;

// Page 0.
inline constexpr int VersionAt = 0x14;
inline constexpr quint32 Jet3Version = 0;
inline constexpr quint32 Jet4Version = 1;
inline constexpr int MaskedAt = 0x18;
inline constexpr int MaskedSize = 128;
inline constexpr int PageKeyAt = 0x3E;
inline constexpr int PasswordAt = 0x42;
inline constexpr int PasswordSize = 40;
inline constexpr int CreationDateAt = 0x72;

// Data pages.
inline constexpr int SlotCountAt = 12;
inline constexpr int SlotsAt = 14;
inline constexpr quint16 SlotOffset = 0x1FFF;
inline constexpr quint16 SlotIsPointer = 0x4000; ///< the row was moved; its bytes are a pointer to it
inline constexpr quint16 SlotIsDeleted = 0x8000;

/// "LVAL": pages of long texts have it instead of an owner.
inline constexpr quint32 LongValueOwner = 0x4C41564C;

/// Definition page of MSysObjects, the catalogue of a file.
inline constexpr quint32 CataloguePage = 2;
inline constexpr quint32 SystemObject = 0x80000002; ///< either bit in `Flags`: not a table of the user

/// The first @p size bytes of the RC4 key stream for @p key.
QByteArray keyStream(QByteArrayView key, int size);

/// Masks or unmasks bytes 0x18 to 0x97 of page 0.
void maskHeader(QByteArray &header);

/// Masks or unmasks a password field. The mask is derived from the whole days of the creation date.
void maskPassword(QByteArray &field, double creationDate);

} // namespace Jet
