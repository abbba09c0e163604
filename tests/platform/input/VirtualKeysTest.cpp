#include "platform/input/VirtualKeys.h"

#include "platform/PlatformUserInputManagerImp.h"

#include <gtest/gtest.h>

namespace {

class OpenManager : public PlatformUserInputManagerImp
{
public:
    using PlatformUserInputManagerImp::m_keyMap;
};

TEST(VirtualKeys, AreKnownWhereTheServiceHasThem)
{
    const OpenManager service;
    for (int code = -1; code <= 300; ++code)
        EXPECT_EQ(service.m_keyMap.count(code) == 1, isKnownKey(code)) << code;
}

TEST(VirtualKeys, AreEachListedOnce)
{
    const OpenManager service;
    EXPECT_EQ(service.m_keyMap.size(), knownKeys.size());
}

} // namespace
