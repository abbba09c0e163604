#pragma once

#include "inspection/files/PathAnswers.h"
#include "platform/files/FileStamp.h"

#include <QGroupBox>
#include <QTimer>

class AnswerField;
class QGridLayout;
class QLabel;
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
    /// Asks anew where the path, or the folder that holds it, has changed.
    void lookForChanges();

private:
    QLineEdit* addInput(QGridLayout* grid, const QString& label, const QString& hint);
    AnswerField* addAnswer(QGridLayout* grid, int row, int column, const QString& label,
                           const char* objectName);
    QString path() const;
    void askSoon();
    void takeStamps();
    void showCheapAnswers();
    void showNote();
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
    QLabel* m_note; ///< in which way the services take what was typed
    FileStamp m_pathStamp;
    FileStamp m_folderStamp;
};
