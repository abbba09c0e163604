#pragma once

#include <iostream>
#include <sstream>
#include <string>

/// What the program writes to std::cout during the object's life.
class CapturedOutput
{
public:
    CapturedOutput() : m_original(std::cout.rdbuf(m_captured.rdbuf())) {}
    ~CapturedOutput() { std::cout.rdbuf(m_original); }

    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    std::string text() const { return m_captured.str(); }

private:
    std::ostringstream m_captured;
    std::streambuf* m_original;
};
