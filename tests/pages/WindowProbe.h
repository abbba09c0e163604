#pragma once

#include "window/MainWindow.h"
#include "window/Page.h"

#include <QTranslator>

#include <memory>
#include <string>

/// The real window, opened on one page as large as the smallest supported screen.
class WindowProbe
{
public:
    enum class Language
    {
        English,
        Chinese
    };

    explicit WindowProbe(const std::string& page, Language language = Language::English);
    ~WindowProbe();

    WindowProbe(const WindowProbe&) = delete;
    WindowProbe& operator=(const WindowProbe&) = delete;

    Page& page() const;

    /// The control of this object name; ends the test program when there is none.
    template <typename Control>
    Control& control(const char* name) const
    {
        auto* found = page().findChild<Control*>(QLatin1String(name));
        if (!found)
            qFatal("no control named %s", name);
        return *found;
    }

    /// What an answer field or another line edit holds.
    QString text(const char* name) const;
    void type(const char* name, const QString& text) const;
    void click(const char* name) const;
    /// Lets the event loop turn until no job runs; false when one still runs after 20 s.
    bool settle() const;

    /// The texts of labels, buttons and boxes in the page that do not fit where they stand.
    QStringList clipped() const;
    /// The controls that the keyboard reaches and that have no accessible name.
    QStringList nameless() const;
    /// The controls that take the focus and that Tab does not come to from the first one.
    QStringList unreachable() const;

private:
    std::unique_ptr<QTranslator> m_translator;
    MainWindow m_window;
};
