#include "app/Logger.h"

#include <ctime>
#include <iostream>

namespace {

const char* prefix(Logger::log_level level)
{
    switch (level) {
    case Logger::debug: return "[DEBUG] ";
    case Logger::info: return "[INFO] ";
    case Logger::warning: return "[WARNING] ";
    case Logger::error: return "[ERROR] ";
    }
    return "";
}

std::string startBanner()
{
    return currTime() + " : " + "=== Start logging ===";
}

// This line alone ends with carriage return and line feed. Intended: tools that read the log tell
// the end of a run by it.
std::string endBanner()
{
    return currTime() + " : " + "=== End logging ===\r\n";
}

} // namespace

std::string currTime()
{
    const std::time_t now = std::time(nullptr);
    // Of the two forms only localtime, which is not re-entrant, notices a changed time zone.
    const std::tm* local = std::localtime(&now);
    char buffer[64];
    const std::size_t length = std::strftime(buffer, sizeof buffer, "%Y-%m-%d %H:%M:%S", local);
    return std::string(buffer, length);
}

Logger::Logger() : m_target(console), m_level(debug)
{
    std::cout << startBanner() << std::endl;
}

Logger::Logger(log_target target, log_level level, const std::string& path)
    : m_target(target), m_path(path), m_level(level)
{
    const std::string banner = startBanner() + "\n";
    if (m_target != console) {
        m_file.open(m_path, std::ios::out | std::ios::app);
        m_file << banner;
    }
    if (m_target != file)
        std::cout << banner;
}

Logger::~Logger()
{
    if (m_file.is_open())
        append(endBanner());
}

void Logger::DEBUG(const std::string& text)
{
    output(text, debug);
}

void Logger::INFO(const std::string& text)
{
    output(text, info);
}

void Logger::WARNING(const std::string& text)
{
    output(text, warning);
}

void Logger::ERRORS(const std::string& text)
{
    output(text, error);
}

void Logger::output(const std::string& text, log_level level)
{
    const std::string line = prefix(level) + currTime() + " : " + text + "\n";
    if (m_target != file && level >= m_level)
        std::cout << line;
    // Intended: lines below the threshold still go to the file.
    if (m_target != console)
        append(line);
}

// What a full disk has refused waits in the stream's buffer, as far as that reaches, and is written
// as soon as there is room. A file that could not be opened swallows all lines, whatever happens
// later.
void Logger::append(const std::string& text)
{
    if (m_file.is_open())
        m_file.clear();
    m_file << text;
    m_file.flush();
}
