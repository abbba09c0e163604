#include "tests/pages/CutTexts.h"

#include "pages/input/KeyLamp.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabBar>

namespace {

int textWidth(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

QStringList cutLabel(const QLabel& label)
{
    const bool fits = label.wordWrap() ? label.height() >= label.heightForWidth(label.width())
                                       : label.width() >= label.sizeHint().width() &&
                                             label.height() >= label.sizeHint().height();
    return fits ? QStringList() : QStringList(label.text());
}

QStringList cutButton(const QAbstractButton& button)
{
    const bool fits = button.width() >= button.minimumSizeHint().width() &&
                      button.width() >= textWidth(button, button.text()) &&
                      button.height() >= button.fontMetrics().height();
    return fits ? QStringList() : QStringList(button.text());
}

QStringList cutTitle(const QGroupBox& box)
{
    return box.width() >= textWidth(box, box.title()) + box.fontMetrics().height()
               ? QStringList()
               : QStringList(box.title());
}

QStringList cutTabs(const QTabBar& bar)
{
    QStringList cut;
    for (int tab = 0; tab < bar.count(); ++tab) {
        const QRect place = bar.tabRect(tab);
        if (!bar.rect().contains(place) || place.width() < textWidth(bar, bar.tabText(tab)))
            cut << bar.tabText(tab);
    }
    return cut;
}

QStringList cutHeaders(const QHeaderView& header)
{
    QStringList cut;
    for (int section = 0; section < header.count(); ++section) {
        const bool shown = !header.isSectionHidden(section);
        if (shown && header.sectionSize(section) < header.sectionSizeHint(section))
            cut << header.model()->headerData(section, header.orientation()).toString();
    }
    return cut;
}

// Each of the choices has to fit when it is the current one.
QStringList cutChoices(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.subControls = QStyle::SC_All;
    const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, &box);
    QStringList cut;
    for (int item = 0; item < box.count(); ++item) {
        if (textWidth(box, box.itemText(item)) > field.width())
            cut << box.itemText(item);
    }
    return cut;
}

QStringList cutPlaceholder(const QLineEdit& edit)
{
    QStyleOptionFrame option;
    option.initFrom(&edit);
    option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
    const QRect contents =
        edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
    return textWidth(edit, edit.placeholderText()) <= contents.width()
               ? QStringList()
               : QStringList(edit.placeholderText());
}

QStringList cutLamp(const KeyLamp& lamp)
{
    const QSize wanted = lamp.sizeHint();
    return lamp.width() >= wanted.width() && lamp.height() >= wanted.height()
               ? QStringList()
               : QStringList(lamp.accessibleName());
}

QStringList cutIn(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text().isEmpty() ? QStringList() : cutLabel(*label);
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().isEmpty() ? QStringList() : cutButton(*button);
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
        return cutTitle(*box);
    if (const auto* bar = qobject_cast<const QTabBar*>(&widget))
        return cutTabs(*bar);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        return cutHeaders(*header);
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return cutChoices(*box);
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return cutPlaceholder(*edit);
    if (const auto* lamp = qobject_cast<const KeyLamp*>(&widget))
        return cutLamp(*lamp);
    return {};
}

bool carriesText(const QWidget& widget)
{
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const KeyLamp*>(&widget);
}

bool isInside(const QWidget& widget, const QWidget& root)
{
    return root.rect().contains(QRect(widget.mapTo(&root, QPoint()), widget.size()));
}

} // namespace

QStringList cutTexts(const QWidget& root)
{
    QStringList cut;
    const auto widgets = root.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->window() != root.window())
            continue;
        cut += cutIn(*widget);
        if (carriesText(*widget) && !isInside(*widget, root))
            cut << QStringLiteral("outside: ") + widget->accessibleName();
    }
    return cut;
}
