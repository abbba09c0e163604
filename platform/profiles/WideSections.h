#pragma once

#include <QString>

#include <vector>

/// Where QSettings looks for a name. It parses a section when a name in it is first asked for: the
/// one section that sorts right before the name. With sections such as "A" and "A/B", or a key such
/// as "B/c" in no section, that may be another one than the name stands in. The name is then found
/// only after a call that parses all sections.
class WideSections
{
public:
    /// Prefixes as those of IniName::sectionPrefix(), in any order.
    explicit WideSections(std::vector<QString> prefixes = {});

    /// True where QSettings finds the key, which stands in the section, without having parsed other
    /// sections before.
    bool findAtOnce(const QString& section, const QString& key) const;
    /// The same for all keys of ASCII in the section that have no slash in them.
    bool findAllAtOnce(const QString& section) const
    {
        return findAtOnce(section, QString(QChar(0xffff)));
    }

private:
    std::vector<QString> m_prefixes; ///< sorted
};
