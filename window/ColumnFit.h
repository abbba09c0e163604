#pragma once

#include <QObject>
#include <QStringList>

#include <set>
#include <vector>

class QTableView;

/// How wide a column is that shows this text.
int sampleWidth(const QTableView& table, const QString& sample);

/// Keeps the columns of a table within its width, so that nobody has to scroll sideways.
///
/// A column is as wide as its title and its sample or, where it has none, as what it holds; some
/// columns share what is left, the last one unless others are named. Where there is not room for
/// all, the widest give way first: down to their titles, and then further. Texts and titles that do
/// not fit are elided.
///
/// A column that the user has dragged keeps its width, also where the others have no room then.
class ColumnFit : public QObject
{
    Q_OBJECT

public:
    /// The table owns it, and has its model already.
    explicit ColumnFit(QTableView* table);
    /// That of a table that was arranged by arrangeTable.
    static ColumnFit& of(const QTableView& table);

    /// What the columns show, in their order; an empty text or none stands for what they hold. A
    /// column that shares what is left never gets narrower than its sample.
    ///
    /// Samples say what a column is for where an average character does not: in fonts with Chinese
    /// characters it is twice as wide as a Latin letter.
    void setSamples(const QStringList& samples);
    void setSample(int column, const QString& sample);
    /// Names the columns that share what is left.
    void giveRestTo(const std::set<int>& columns);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// What a column needs, in pixels.
    struct Need
    {
        int least;
        int titled; ///< so that the title can be read
        int wanted;
        bool takesRest;
    };

    Need needOf(int column) const;
    static std::vector<int> widths(const std::vector<Need>& needs, int room);
    void fit(int first = 0);
    void follow(int resized);

    QTableView* m_table;
    QStringList m_samples;
    std::set<int> m_takingRest;
    std::set<int> m_dragged;
    bool m_isFitting = false;
};
