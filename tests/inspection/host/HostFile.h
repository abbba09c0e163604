#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cstring>
#include <elf.h>
#include <gtest/gtest.h>

/// The path of a library that the test tree builds.
inline QString testLibrary(const QString& name)
{
    return QStringLiteral(QUAYSIDE_TEST_LIBRARIES "/libhostcheck_%1.so").arg(name);
}

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline void writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(bytes.size(), file.write(bytes));
}

template <typename Record>
Record recordAt(const QByteArray& bytes, quint64 offset)
{
    Record record = {};
    std::memcpy(&record, bytes.constData() + offset, sizeof record);
    return record;
}

template <typename Record>
void setRecordAt(QByteArray& bytes, quint64 offset, const Record& record)
{
    std::memcpy(bytes.data() + offset, &record, sizeof record);
}

/// The library, said to be made for another machine.
inline QByteArray forOtherMachine(QByteArray bytes)
{
    auto header = recordAt<Elf64_Ehdr>(bytes, 0);
    header.e_machine = header.e_machine == EM_AARCH64 ? EM_X86_64 : EM_AARCH64;
    setRecordAt(bytes, 0, header);
    return bytes;
}

/// Where the program header of that type begins in the file; 0 where there is none.
inline quint64 offsetOfSegment(const QByteArray& bytes, quint32 type)
{
    const auto header = recordAt<Elf64_Ehdr>(bytes, 0);
    for (quint64 i = 0; i < header.e_phnum; ++i) {
        const quint64 offset = header.e_phoff + i * sizeof(Elf64_Phdr);
        if (recordAt<Elf64_Phdr>(bytes, offset).p_type == type)
            return offset;
    }
    return 0;
}

/// Where the entry of the dynamic section begins in the file; 0 where there is none.
inline quint64 offsetOfDynamic(const QByteArray& bytes, qint64 tag)
{
    const auto segment = recordAt<Elf64_Phdr>(bytes, offsetOfSegment(bytes, PT_DYNAMIC));
    for (quint64 i = 0; i < segment.p_filesz; i += sizeof(Elf64_Dyn)) {
        if (recordAt<Elf64_Dyn>(bytes, segment.p_offset + i).d_tag == tag)
            return segment.p_offset + i;
    }
    return 0;
}

/// The library with another value in its dynamic section.
inline QByteArray withDynamic(QByteArray bytes, qint64 tag, quint64 value)
{
    const quint64 offset = offsetOfDynamic(bytes, tag);
    EXPECT_NE(0u, offset) << tag;
    auto entry = recordAt<Elf64_Dyn>(bytes, offset);
    entry.d_un.d_val = value;
    setRecordAt(bytes, offset, entry);
    return bytes;
}

/// A folder for files of a test.
class FileFolder
{
public:
    QString path(const QString& name = QString()) const { return m_folder.filePath(name); }

    /// The path of a new file.
    QString file(const QString& name, const QByteArray& bytes) const
    {
        writeBytes(path(name), bytes);
        return path(name);
    }

private:
    QTemporaryDir m_folder;
};
