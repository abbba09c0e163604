#pragma once

#include "inspection/Job.h"
#include "inspection/profiles/ProfileLines.h"
#include "platform/profiles/WrittenLine.h"

#include <vector>

/// Finds the lines of a profile that a family drops, replaces or reads otherwise than they are
/// written. Asks no service. Comments, which are dropped as who wrote them meant, are found only
/// where that is asked for.
class ProfileCheckJob : public Job
{
    Q_DECLARE_TR_FUNCTIONS(ProfileCheckJob)

public:
    enum class Comments
    {
        Skip,
        Tell
    };

    struct Finding
    {
        int line = 0; ///< from 1 on
        ProfileFamily family = ProfileFamily::Wide;
        QString reason; ///< in sentences
    };

    explicit ProfileCheckJob(const QByteArray& bytes, Comments comments = Comments::Skip);

    bool step() override;
    /// In the order of the lines, the wide family first.
    const std::vector<Finding>& findings() const { return m_findings; }

private:
    void check(int line);
    void check(int line, const WrittenLine& written, ProfileFamily family);
    QStringList reasons(int line, const WrittenLine& written, ProfileFamily family) const;
    void beginSection(int line, const WrittenLine& header);
    bool isPlain(int line, const WrittenLine& written) const;
    bool isTold(LineMark mark, const WrittenLine& written) const;

    ProfileLines m_lines;
    Comments m_comments;
    bool m_areLinesRead = false;
    int m_next = 0;
    WideSections m_wideSections;
    QByteArray m_section;   ///< what the last header says
    bool m_isPlain = false; ///< both families know the section by that name
    std::vector<Finding> m_findings;
};
