// The file system of a device, its faults, and property lists as its files hold them.
#include "simulator/device/device_fixture.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace simulator::test {
namespace {

class Files : public DeviceTest {
  protected:
    bool write(NSArray* array, bool atomically = true) {
        return [array writeToFile:path atomically:atomically ? YES : NO] != NO;
    }
    NSArray* read() { return [NSArray arrayWithContentsOfFile:path]; }

    NSString* path = @"/var/mobile/Library/list.plist";
    NSArray* texts = @[ @"plain", @"Ünïcode 😀", @"<&> \"'" ];
};

TEST_F(Files, lie_below_the_root_of_the_device) {
    EXPECT_TRUE(write(texts));
    EXPECT_EQ(device().readPropertyList([path UTF8String]),
              nlohmann::json({"plain", "Ünïcode 😀", "<&> \"'"}));
    EXPECT_TRUE([[NSArray arrayWithContentsOfFile:@"/private/var/mobile/Library/list.plist"] isEqual:texts]);
    std::filesystem::current_path(device().root());
    EXPECT_TRUE([[NSArray arrayWithContentsOfFile:@"var/mobile/Library/list.plist"] isEqual:texts]);
    EXPECT_EQ(linuxPath("/variable"), "/variable");
}

TEST_F(Files, hold_nothing_but_property_lists) {
    for (id value in @[ [[NSObject new] autorelease], [NSNull null], @{@1 : @"number as a key"} ])
        EXPECT_FALSE(write(@[ value ]));
    EXPECT_FALSE(device().exists([path UTF8String]));
}

TEST_F(Files, of_a_full_disk_keep_the_old_content_where_they_are_written_atomically) {
    ASSERT_TRUE(write(texts));
    change([](Conditions& conditions) { conditions.faults.diskFull = true; });
    EXPECT_FALSE(write(@[ @"new" ]));
    EXPECT_TRUE([read() isEqual:texts]);
    EXPECT_EQ(mkdir("/var/mobile/folder", 0755), -1);
    EXPECT_EQ(errno, ENOSPC);
    EXPECT_FALSE(write(@[ @"new" ], false));
    EXPECT_EQ(read(), nil);
    change([](Conditions& conditions) { conditions.faults.diskFull = false; });
    EXPECT_TRUE(write(@[ @"new" ]));
}

TEST_F(Files, are_hidden_and_locked_by_faults) {
    ASSERT_TRUE(write(texts));
    change([](Conditions& conditions) {
        conditions.faults.unreadable = {"/private/var/mobile/Library/list.plist"};
    });
    EXPECT_EQ(read(), nil);
    EXPECT_TRUE([[NSFileManager defaultManager] fileExistsAtPath:path]);
    EXPECT_EQ(open([path UTF8String], O_RDONLY), -1);
    EXPECT_EQ(errno, EACCES);
    change([](Conditions& conditions) {
        conditions.faults = {.missing = {"/var/mobile/Library"}, .unreadable = {}};
    });
    EXPECT_EQ(read(), nil);
    EXPECT_FALSE([[NSFileManager defaultManager] fileExistsAtPath:path]);
}

} // namespace
} // namespace simulator::test
