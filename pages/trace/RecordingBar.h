#pragma once

#include <QWidget>

class PathEdit;

/// Takes the path of a recording: typed, or chosen in a dialog. Its focus is that of the field.
class RecordingBar : public QWidget
{
    Q_OBJECT

public:
    explicit RecordingBar(QWidget* parent = nullptr);

    /// Shows the path of the file that is open, where the dialog starts.
    void setPath(const QString& path);

signals:
    /// The path is as it was typed or chosen.
    void openRequested(const QString& path);

private:
    void choose();

    PathEdit* m_file;
    QString m_path;
};
