#include "window/TabLook.h"

#include <QLayout>
#include <QTabWidget>

// A pane has a colour of its own, which on a dark page looks like an island.
void arrangeTabs(QTabWidget& tabs)
{
    tabs.setDocumentMode(true);
    for (int tab = 0; tab < tabs.count(); ++tab) {
        if (QLayout* layout = tabs.widget(tab)->layout())
            layout->setContentsMargins(0, layout->contentsMargins().top(), 0, 0);
    }
}
