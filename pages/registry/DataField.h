#pragma once

#include <QWidget>

class QLineEdit;
class QPlainTextEdit;

/// The field in which the data of a value is typed: one line, in which Enter is left to the dialog,
/// or a large field, in which Enter begins a line and Ctrl+Enter submits.
class DataField : public QWidget
{
    Q_OBJECT

public:
    explicit DataField(QWidget* parent = nullptr);

    /// Shows a text, from which changes count; one with line ends in the large field.
    void setText(const QString& text);
    /// What has been typed; a line ends with a line feed.
    QString text() const;
    /// True while the text is the one that was set.
    bool isOriginal() const;
    /// True once anything has been typed since, even if it has been taken back.
    bool isTouched() const { return m_isTouched; }

    /// Takes the text into the large field or back into the line. With line ends in the text the
    /// field stays large.
    void setLarge(bool large);
    bool isLarge() const;
    /// True where only the large field can show the text.
    bool hasLineEnds() const;

    void selectAll();

signals:
    /// The text has become another one.
    void changed();
    void submitted();

private:
    void notice();
    void fill(const QString& text);
    void showField(bool large);
    QString contents() const;

    QLineEdit* m_line;
    QPlainTextEdit* m_large;
    QString m_original; ///< the contents of the field that shows the text that was set
    bool m_isSetting = false;
    bool m_isTouched = false;
};
