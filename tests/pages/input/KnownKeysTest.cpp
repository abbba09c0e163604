#include "platform/PlatformUserInputManagerImp.h"
#include "platform/input/VirtualKeys.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

class OpenManager : public PlatformUserInputManagerImp
{
public:
    using PlatformUserInputManagerImp::m_keyMap;
};

// The page lists once more what the service does not tell.
TEST(KnownKeys, AreThoseOfTheService)
{
    OpenManager service;
    service.initKeyMap();
    for (int code = 1; code <= 254; ++code)
        EXPECT_EQ(isKnownKey(code), service.m_keyMap.count(code) == 1) << code;
    EXPECT_EQ(knownKeys().size(), service.m_keyMap.size());
}

TEST(KnownKeys, AreNotShownAsUnknown)
{
    for (const VirtualKey& key : unknownKeys())
        EXPECT_FALSE(isKnownKey(key.code)) << key.name;
}

} // namespace
