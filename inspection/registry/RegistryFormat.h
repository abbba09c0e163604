#pragma once

#include <QByteArray>
#include <QString>

/// How values are shown.
namespace RegistryFormat {

/// A value's data in one line: numbers in decimal and hexadecimal digits, the start of long bytes,
/// line ends as signs.
QString data(unsigned int type, const QByteArray& data);

/// The data in the form in which it is typed in.
QString editable(unsigned int type, const QByteArray& data);

/// The number of up to eight bytes in little-endian order.
quint64 number(const QByteArray& data);

} // namespace RegistryFormat
