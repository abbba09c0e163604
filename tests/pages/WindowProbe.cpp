#include "tests/pages/WindowProbe.h"
#include "tests/support/WaitFor.h"

#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTest>

// The macro declares a function of the global namespace.
static void registerResources()
{
    Q_INIT_RESOURCE(quayside);
}

namespace {

std::unique_ptr<QTranslator> installed(WindowProbe::Language language)
{
    if (language == WindowProbe::Language::English)
        return nullptr;
    registerResources();
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QStringLiteral(":/translator/kdlm_zh.qm")))
        qFatal("no Chinese catalogue");
    QApplication::installTranslator(translator.get());
    return translator;
}

bool isClipped(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->wordWrap())
        return widget.height() < label->heightForWidth(widget.width());
    const QSize wanted = widget.minimumSizeHint().expandedTo(
        qobject_cast<const QGroupBox*>(&widget) ? QSize() : widget.sizeHint());
    return widget.width() < wanted.width() || widget.height() < wanted.height();
}

QString shownText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
        return box->title();
    return {};
}

} // namespace

WindowProbe::WindowProbe(const std::string& page, Language language)
    : m_translator(installed(language))
{
    m_window.showPage(QString::fromStdString(page));
    m_window.resize(800, 600);
    m_window.show();
    QApplication::setActiveWindow(&m_window);
    // A large store that a test has filled saves itself first.
    if (!waitFor([this] { return m_window.currentPage() != nullptr; }))
        qFatal("the page is not built");
}

WindowProbe::~WindowProbe() = default;

Page& WindowProbe::page() const
{
    return *m_window.currentPage();
}

QString WindowProbe::text(const char* name) const
{
    return control<QLineEdit>(name).text();
}

void WindowProbe::type(const char* name, const QString& text) const
{
    control<QLineEdit>(name).setText(text);
}

void WindowProbe::click(const char* name) const
{
    QTest::mouseClick(&control<QAbstractButton>(name), Qt::LeftButton);
}

bool WindowProbe::settle() const
{
    return waitFor([this] { return !page().isBusy(); });
}

QStringList WindowProbe::clipped() const
{
    QStringList texts;
    const QSize hint = m_window.minimumSizeHint();
    if (hint.width() > 800 || hint.height() > 600)
        texts << QStringLiteral("window %1x%2").arg(hint.width()).arg(hint.height());
    const auto widgets = page().findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const QString text = shownText(*widget);
        if (widget->isVisible() && !text.isEmpty() && isClipped(*widget))
            texts << text;
    }
    return texts;
}

QStringList WindowProbe::unreachable() const
{
    const auto widgets = page().findChildren<QWidget*>();
    page().setFocus();
    QSet<const QWidget*> reached;
    for (int i = 0; i < widgets.size() && QApplication::focusWidget(); ++i) {
        reached.insert(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QStringList names;
    for (const QWidget* widget : widgets) {
        const bool wanted = (widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->focusProxy() &&
                            widget->isEnabled() && widget->isVisibleTo(&page());
        if (wanted && !reached.contains(widget))
            names << QString::fromLatin1(widget->metaObject()->className()) + widget->objectName();
    }
    return names;
}

QStringList WindowProbe::nameless() const
{
    QStringList names;
    const auto widgets = page().findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        // A control that another one stands for, such as the field of a spin box, is not read out.
        if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->focusProxy())
            continue;
        const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(widget);
        if (!accessible || accessible->text(QAccessible::Name).isEmpty())
            names << QString::fromLatin1(widget->metaObject()->className()) + widget->objectName();
    }
    return names;
}
