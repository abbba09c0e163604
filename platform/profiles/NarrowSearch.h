#pragma once

#include <QString>
#include <QStringView>

/// Looks for one value in the text of a profile, as the narrow profile calls see it, while the text
/// comes piece by piece: a section that begins again discards what was found in it, and of several
/// entries with one key the last one counts.
///
/// Of the text nothing is kept but the line that has not ended yet, and of a long line no more than
/// could be the value: a profile may be larger than the memory.
class NarrowSearch
{
public:
    /// Both names have to match exactly; the header has its brackets.
    NarrowSearch(QString header, QString key);

    /// Takes the next piece. Lines end with a line feed; carriage returns are characters like
    /// others.
    void add(const QString& piece);

    /// The value, to be asked for behind the last piece; null when there is none.
    QString finish();

private:
    void scan(QStringView lines);
    void addToRest(QStringView part);
    bool isOfNoUse() const;

    QString m_header;
    QString m_key;
    QString m_value;
    QString m_rest; ///< of the line that has not ended
    int m_nextLook;
    bool m_isInside = false;   ///< in the section that is looked for
    bool m_isSkipping = false; ///< the line that has not ended is of no use
};
