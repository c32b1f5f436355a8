#include "VersionControl/VersionControl.h"

#include <gtest/gtest.h>

namespace {
struct SuiteGuard {
    quint32 saved = SuiteVersion();
    ~SuiteGuard() { SetSuiteVersion(saved); }
};
} // namespace

TEST(VersionControl, PacksOneBytePerFieldMajorFirst)
{
    EXPECT_EQ(PackVersion(1, 2, 3, 4), 0x01020304u);
}

TEST(VersionControl, AcceptsOnlyTheSameReleaseWithIdentityAndANewEnoughBuild)
{
    SuiteGuard guard;
    SetSuiteVersion(PackVersion(5, 5, 2, 0));
    EXPECT_FALSE(CheckDllVersion(0x05050100, "QelMfc0", "Nov 22 2026 10:00:00")); // build 1 < 2
    SetSuiteVersion(PackVersion(5, 5, 0, 0));
    EXPECT_FALSE(CheckDllVersion(PackVersion(5, 4, 9, 9), "QelMfc0", "stamp"));
    EXPECT_FALSE(CheckDllVersion(PackVersion(6, 5, 0, 0), "QelMfc0", "stamp"));
    EXPECT_FALSE(CheckDllVersion(0x05050100, "", "stamp"));
    EXPECT_FALSE(CheckDllVersion(0x05050100, "QelMfc0", "  "));
    EXPECT_TRUE(CheckDllVersion(0x05050100, "QelMfc0", "stamp"));
    EXPECT_TRUE(LastVersionError().isEmpty());
}
