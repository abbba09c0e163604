#pragma once

#include <QWidget>

#include <memory>

class DigestJob;
class PageContext;
class QLineEdit;
class QPlainTextEdit;
class QRadioButton;

/// Takes a text, or the path of a file, to digest.
class DigestSource : public QWidget
{
    Q_OBJECT

public:
    explicit DigestSource(PageContext& context, QWidget* parent = nullptr);

    /// Null when there is nothing to digest; then it has reported why. `second` is the second text
    /// of `Encrypt::KdEncode`.
    std::unique_ptr<DigestJob> makeJob(const QByteArray& second);
    /// What the next job digests, in words.
    QString description() const;

signals:
    /// Return was pressed in the path.
    void accepted();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QWidget* makeFile();
    void setFile(const QString& path);
    void browse();
    QString path() const;

    PageContext& m_context;
    QRadioButton* m_fromFile;
    QPlainTextEdit* m_text;
    QLineEdit* m_path;
};
