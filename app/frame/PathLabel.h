#pragma once

#include <QFrame>

/// Shows a path in one line: below the user's home with "~", and with its middle left out where the
/// line is too short. The tool tip and the context menu's copy have all of it.
class PathLabel : public QFrame
{
    Q_OBJECT

public:
    explicit PathLabel(const QString& path, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString shown() const;
    void copy() const;

    QString m_path;
};
