#pragma once

#include "tests/platform/files/FileTree.h"

#include <QStringList>

#include <random>

/// Folders full of entries of every type, whose names are made to be confused: letters in both
/// cases, wildcards, dots, separators of other systems, other scripts, and bytes that are no text.
class RandomTree : public FileTree
{
public:
    explicit RandomTree(unsigned int seed) : m_random(seed) {}

    /// Fills the folder `name`, which exists and ends with "/", with up to `count` entries.
    void fill(const QByteArray& folder, int count)
    {
        for (int i = 0; i < count; ++i) {
            const QByteArray name = folder + nameOf(1, 3);
            if (!holds(name))
                add(name, folder);
        }
    }

    /// A name of so many pieces.
    QByteArray nameOf(int fewest, int most)
    {
        static const QByteArrayList pieces = {
            "a", "A", "b",      "B", ".",  ".txt",   ".TXT",   "ä", "Ä", "ß",      "i", "İ",
            "ı", "K", "\u212A", "s", "ſ",  "\uE000", "\uFFFD", "😀", "𐐷", "𐐏",      " ", ";",
            "[", "]", "*",      "?", "\\", "!",      "^",      "-", "{", "}",      ":", "\n",
            "+", "$", "(",      ")", "|",  "#",      "\uFEFF", "~", "é", "e\u0301"};
        static const QByteArrayList noText = {"\xFF", "\xE2\x82", "\xC0\xAF", "\xED\xA0\x80"};
        QByteArray name;
        for (int n = below(most - fewest + 1) + fewest; n > 0; --n)
            name += pieces[below(pieces.size())];
        return below(20) == 0 ? name + noText[below(noText.size())] : name;
    }

    /// A random number from 0 to `limit` - 1.
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

private:
    void add(const QByteArray& name, const QByteArray& folder)
    {
        switch (below(8)) {
        case 0: return this->folder(name);
        case 1: return link(name, nameOf(1, 1)); // most are broken
        case 2: return link(name, path(folder).toUtf8());
        case 3: return pipe(name);
        default: return file(name, below(3));
        }
    }

    std::mt19937 m_random;
};
