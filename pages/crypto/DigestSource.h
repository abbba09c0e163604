#pragma once

#include <QWidget>

#include <memory>

class DigestJob;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;
class QStackedWidget;

/// Takes a text, or the path of a file, to digest.
class DigestSource : public QWidget
{
    Q_OBJECT

public:
    explicit DigestSource(QWidget* parent = nullptr);

    void setFile(const QString& path);

    /// Null when there is nothing to digest; then `problem` says why, in words.
    std::unique_ptr<DigestJob> makeJob(const QByteArray& second, QString* problem);
    /// What the next job digests, in words.
    QString description() const;

signals:
    /// Return was pressed in the path.
    void accepted();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QWidget* makeText();
    QWidget* makeFile();
    void browse();
    std::unique_ptr<DigestJob> makeFileJob(const QByteArray& second, QString* problem);

    QRadioButton* m_fromText;
    QRadioButton* m_fromFile;
    QStackedWidget* m_stack;
    QPlainTextEdit* m_text = nullptr;
    QLineEdit* m_path = nullptr;
};
