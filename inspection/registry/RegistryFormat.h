#pragma once

#include <QByteArray>
#include <QString>

/// How values are shown.
namespace RegistryFormat {

/// REG_SZ for 1; the number for a type without a name.
QString typeName(unsigned int type);

/// A value's data in one line: numbers in decimal and hexadecimal digits, the start of long bytes,
/// line ends as signs.
QString data(unsigned int type, const QByteArray& data);

/// The data in the form in which it is typed in.
QString editable(unsigned int type, const QByteArray& data);

/// Of four or eight bytes in little-endian order.
quint64 number(const QByteArray& data);

} // namespace RegistryFormat
