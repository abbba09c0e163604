#pragma once

#include <QString>
#include <QStringList>

/// Something that one page asks another one to show: see `Page::showPlace`.
struct PlaceRequest
{
    QString page;      ///< the name of the page in the catalogue
    QString place;     ///< what it is about, such as the path of a key, as people write it
    QStringList names; ///< what to choose there; may be empty
};
