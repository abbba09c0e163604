#include "pages/profiles/ProfileFileBar.h"

#include "inspection/files/TypedPath.h"
#include "window/FileDialog.h"
#include "window/Page.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

ProfileFileBar::ProfileFileBar(QWidget* parent) : QWidget(parent), m_file(new QLineEdit)
{
    m_file->setObjectName(QStringLiteral("file"));
    m_file->setAccessibleName(tr("Profile file"));
    m_file->setPlaceholderText(tr("Path of an INI file"));
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
    connect(choose, &QPushButton::clicked, this, &ProfileFileBar::choose);
    setFocusProxy(m_file);
}

void ProfileFileBar::setPath(const QString& path)
{
    m_path = path;
    m_file->setText(path);
}

void ProfileFileBar::choose()
{
    auto* dialog = new FileDialog(this, tr("Open a profile"), "profiles");
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilter(tr("Profiles (*.ini);;All files (*)"));
    dialog->startAt(m_path);
    connect(dialog, &QFileDialog::fileSelected, this, &ProfileFileBar::openRequested);
    dialog->open();
}
