#pragma once

#include "tools/pictures/PageDriver.h"

#include <vector>

/// A page and what is done on it for its picture.
struct Scene
{
    const char* page;
    void (*arrange)(PageDriver& driver);
};

const std::vector<Scene>& scenes();
