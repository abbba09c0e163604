#pragma once

#include <QWidget>

class DigestJob;
class DigestSource;
class PageContext;
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
    explicit DigestPanel(PageContext& context, QWidget* parent = nullptr);

private:
    QLayout* makeRequest();
    QWidget* makeResults();
    QLineEdit* addField(QGridLayout* grid, const QString& caption, const QString& tip);
    void digest();
    void showResult(const QString& name, const DigestJob& job, bool complete);
    void showTitle(const QString& name);
    void showDigests(const Digests& digests);

    PageContext& m_context;
    DigestSource* m_source;
    QLineEdit* m_second;
    QGroupBox* m_results = nullptr;
    QLineEdit* m_sha256 = nullptr;
    QLineEdit* m_fingerprint = nullptr;
    QLineEdit* m_md5 = nullptr;
    QLineEdit* m_kd = nullptr;
    QLabel* m_notes = nullptr;
};
