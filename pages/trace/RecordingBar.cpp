#include "pages/trace/RecordingBar.h"

#include "inspection/files/TypedPath.h"
#include "window/FileDialog.h"
#include "window/Page.h"
#include "window/PathEdit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

RecordingBar::RecordingBar(QWidget* parent) : QWidget(parent), m_file(new PathEdit)
{
    m_file->setObjectName(QStringLiteral("file"));
    m_file->setAccessibleName(tr("File of the recording"));
    m_file->setPlaceholderText(tr("Path of a recording"));
    m_file->setAcceptDrops(false); // files dropped here are for the page
    auto* label = new QLabel(tr("Fil&e:"));
    label->setBuddy(m_file);
    auto* choose = glowing(new QPushButton(tr("Ope&n...")));
    choose->setObjectName(QStringLiteral("open"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(m_file, 1);
    row->addWidget(choose);
    connect(m_file, &QLineEdit::returnPressed, this,
            [this] { emit openRequested(typedPath(m_file->text())); });
    connect(choose, &QPushButton::clicked, this, &RecordingBar::choose);
    setFocusProxy(m_file);
}

void RecordingBar::setPath(const QString& path)
{
    m_path = path;
    m_file->setText(path);
}

void RecordingBar::choose()
{
    auto* dialog = new FileDialog(this, tr("Open a recording"), "recordings");
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Recordings (*.trace)"), tr("All files (*)")});
    dialog->startAt(m_path);
    connect(dialog, &QFileDialog::fileSelected, this, &RecordingBar::openRequested);
    dialog->open();
}
