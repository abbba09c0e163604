#pragma once

#include "inspection/files/PathAnswers.h"

#include <QGroupBox>
#include <QTimer>

class AnswerField;
class QGridLayout;
class QLineEdit;

/// What the directory service answers about one path, while it is typed.
class PathPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit PathPanel(IPlatformDirectoryManager& service, QWidget* parent = nullptr);

    void setPath(const QString& path);
    /// Asks the service anew, for everything at once.
    void ask();

private:
    QLineEdit* addInput(QGridLayout* grid, const QString& label, const QString& hint);
    AnswerField* addAnswer(QGridLayout* grid, int row, int column, const QString& label,
                           const char* objectName);
    void askSoon();
    void showCheapAnswers();
    void showExistence();

    PathAnswers m_answers;
    QTimer m_pause; ///< runs while a path is being typed
    QLineEdit* m_path;
    QLineEdit* m_from;
    AnswerField* m_exists;
    AnswerField* m_attributes;
    AnswerField* m_relative;
    AnswerField* m_extension;
    AnswerField* m_url;
    AnswerField* m_temporary;
};
