#pragma once

#include "window/Page.h"

#include <memory>
#include <vector>

class CopyButton;
class DigestJob;
class DigestSource;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
struct Digests;

/// Digests and fingerprints of a text or a file.
class DigestPanel : public QWidget
{
    Q_OBJECT

public:
    explicit DigestPanel(QWidget* parent = nullptr);

    /// Shows what a job has found, or why it failed.
    void showResult(const DigestJob& job, bool complete);

signals:
    void reported(Page::Report kind, const QString& text);
    /// The work to be done, in slices; afterwards `showResult` is to be called.
    void requested(const std::shared_ptr<DigestJob>& job);

private:
    struct Field
    {
        QLineEdit* text;
        CopyButton* copy;
    };

    QWidget* makeRequest();
    QWidget* makeResults();
    Field addField(QGridLayout* grid, const QString& caption, const QString& tip);
    void request();
    void show(const Field& field, const QString& text);
    void showTitle();
    void showDigests(const Digests& digests);

    DigestSource* m_source;
    QLineEdit* m_second = nullptr;
    QGroupBox* m_results = nullptr;
    Field m_sha256{};
    Field m_fingerprint{};
    Field m_md5{};
    Field m_kd{};
    QLabel* m_notes = nullptr;
    QString m_requested;
};
