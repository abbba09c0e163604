#pragma once

#include "inspection/profiles/FileLines.h"
#include "inspection/profiles/ProfileForm.h"
#include "platform/profiles/NarrowLines.h"
#include "platform/profiles/NarrowText.h"
#include "platform/profiles/WideLines.h"
#include "platform/profiles/WideSections.h"

#include <limits>
#include <memory>
#include <optional>

/// The lines of a profile with what either family makes of them, in little more space than the
/// file: texts and names are made when they are asked for.
class ProfileLines
{
public:
    explicit ProfileLines(const QByteArray& bytes = {});
    /// Of a file that is too large to be kept: the lines alone, which are read when they are asked
    /// for, and nothing of what the families make of them.
    static ProfileLines ofLargeFile(const QString& path);

    /// Reads a small piece; false when all has been read, and everything below is known.
    bool step();

    /// False where there are only the lines.
    bool hasMarks() const { return !m_file; }

    int count() const { return m_file ? m_file->count() : static_cast<int>(index().size()); }
    const ProfileForm& form() const { return m_form; }
    /// The file as it lies on disk; empty where there are only the lines.
    const QByteArray& bytes() const { return m_bytes; }

    /// What the line says, as the narrow family decodes it, or what its first `mostBytes` say. A
    /// line that is not UTF-8 is decoded by `codec` where there is one.
    QString text(int line, const QTextCodec* codec = nullptr,
                 int mostBytes = std::numeric_limits<int>::max()) const;

    /// A line in UTF-8, with its end, without the byte order mark of the file.
    QByteArray utf8(int line) const;

    LineMark narrowMark(int line) const;
    LineMark wideMark(int line) const;
    LineReading narrow(int line) const;
    LineReading wide(int line) const;
    /// The wide family's sections.
    WideSections wideSections() const { return WideSections(m_wide.prefixes()); }

private:
    /// What is needed only while the lines are read.
    struct Narrowing
    {
        NarrowText decoder;
        QString text;
        std::optional<NarrowLines> lines;
    };

    bool decode();
    bool decodeNarrow();
    bool readNarrow();
    bool survey();
    const LineIndex& index() const { return m_ownIndex ? *m_ownIndex : m_wide.lines(); }
    /// A line in UTF-8, with its end.
    QByteArray shown(int line) const;
    int narrowHeader(int line) const;

    QByteArray m_bytes;
    QByteArray m_shown; ///< in UTF-8; the bytes themselves where they are that, or nearly
    ProfileForm m_form;
    WideLines m_wide;
    std::optional<LineIndex> m_ownIndex; ///< of m_shown where it is not the bytes themselves
    std::vector<LineMark> m_narrow;
    std::vector<int> m_narrowHeaders;
    int m_stage = 0;
    int m_position = 0; ///< how far the stage has come: bytes, or lines
    std::unique_ptr<QTextDecoder> m_decoder;
    std::unique_ptr<Narrowing> m_narrowing;
    std::unique_ptr<FileLines> m_file;
};
