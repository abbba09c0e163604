#pragma once

#include "platform/IPlatformServices.h"

#include <QSettings>

#include <string>
#include <vector>

/// What a call of enumeration gives: its status, and all that it writes, with what stood there
/// where it writes nothing.
struct EnumerationAnswer
{
    unsigned int status = 0;
    std::wstring name;
    std::vector<unsigned int> numbers;
    std::vector<unsigned char> data;

    friend bool operator==(const EnumerationAnswer& a, const EnumerationAnswer& b);
};
std::ostream& operator<<(std::ostream& out, const EnumerationAnswer& answer);

/// The answers of the services.
EnumerationAnswer askedKey(IPlatformRegisterManager& manager, HKEY key, unsigned int index);
EnumerationAnswer askedValue(IPlatformRegisterManager& manager, HKEY key, unsigned int index);
EnumerationAnswer askedInformation(IPlatformRegisterManager& manager, HKEY key);

/// The same rules once more, as plain as they can be: each answer lists the key anew. Asked after
/// the services, since listing makes the store parse its file.
class PlainEnumeration
{
public:
    PlainEnumeration(QSettings& store, HKEY key);

    EnumerationAnswer key(unsigned int index) const;
    EnumerationAnswer value(unsigned int index) const;
    EnumerationAnswer information() const;

private:
    QStringList names(bool values) const;
    QVariant entry(const QString& name) const;

    QSettings& m_store;
    QString m_group;
};
