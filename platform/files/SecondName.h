#pragma once

#include <QByteArray>
#include <QString>

/// Another name for a file, beside it, for as long as it lives: what is put in the place of the
/// file meanwhile leaves the former one there. It takes no room on the disk; only where the file
/// system has no second names it is a copy.
class SecondName
{
public:
    /// `purpose` is a part of the name, which tells the names of one process apart.
    SecondName(const QString& file, const char* purpose);
    ~SecondName();

    SecondName(const SecondName&) = delete;
    SecondName& operator=(const SecondName&) = delete;

    /// The second name; the first one where there is no other.
    QString path() const;
    /// Makes what has the second name the file that has the first one again. Does nothing where
    /// there is no second name.
    void putBack() const;

private:
    bool isMade() const;

    QByteArray m_file;
    QByteArray m_name;
    bool m_isThere;
};
