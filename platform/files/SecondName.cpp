#include "platform/files/SecondName.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <unistd.h>

SecondName::SecondName(const QString& file, const char* purpose)
    : m_file(QFile::encodeName(file)),
      m_name(m_file + '.' + purpose + '-' + QByteArray::number(QCoreApplication::applicationPid())),
      m_isThere(isMade())
{
}

SecondName::~SecondName()
{
    if (m_isThere)
        unlink(m_name.constData());
}

QString SecondName::path() const
{
    return QFile::decodeName(m_isThere ? m_name : m_file);
}

void SecondName::putBack() const
{
    if (m_isThere)
        std::rename(m_name.constData(), m_file.constData());
}

bool SecondName::isMade() const
{
    unlink(m_name.constData()); // of an earlier process that was killed
    return link(m_file.constData(), m_name.constData()) == 0 ||
           QFile::copy(QFile::decodeName(m_file), QFile::decodeName(m_name));
}
