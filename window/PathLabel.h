#pragma once

#include <QFrame>

/// Shows a path in one line, with its middle left out where the line is too short. The tool tip,
/// Ctrl+C and the context menu's copy have all of it.
class PathLabel : public QFrame
{
    Q_OBJECT

public:
    enum Form
    {
        WholePath, ///< below the user's home with "~"
        FileName
    };

    explicit PathLabel(const QString& path, Form form = WholePath, QWidget* parent = nullptr);

    /// What the line shows where it is wide enough.
    QString text() const { return m_text; }
    /// What an assistive tool reads out before the path.
    void setCaption(const QString& caption);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void copy() const;

    QString m_path;
    QString m_text;
};
