#pragma once

#include "trace/reading/CallSearch.h"

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;

/// Chooses among the calls of a recording: by library, manager, operation, failure and text. Its
/// focus is that of the text.
class CallFilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit CallFilterBar(QWidget* parent = nullptr);

    /// Offers the names that occur. What is chosen stays so where it is still among them.
    void setChoices(const trace::Statistics& statistics);
    trace::CallSearch::Query query() const;
    /// Tells how many calls there are to be seen.
    void showCount(const QString& text);

signals:
    void changed();

private:
    QComboBox* makeChoice(const QString& name, const QString& all, const char* objectName);
    QLayout* makeChoices();
    QLayout* makeText();

    QComboBox* m_library;
    QComboBox* m_manager;
    QComboBox* m_operation;
    QCheckBox* m_failures;
    QLineEdit* m_text;
    QLabel* m_count;
};
