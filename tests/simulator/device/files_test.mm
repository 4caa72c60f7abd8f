#include "device/root.h"
#include "simulator/device/device_test.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace simulator::test {
namespace {

class Files : public DeviceTest {
  protected:
    static bool write(NSArray* array, bool atomically = true) {
        return [array writeToFile:path atomically:atomically ? YES : NO] != NO;
    }
    static NSArray* read() { return [NSArray arrayWithContentsOfFile:path]; }

    void fault(const std::function<void(Faults&)>& change) {
        device().changeConditions([&](Conditions& conditions) { change(conditions.faults); });
    }

    static constexpr NSString* path = @"/var/mobile/Library/list.plist";
    NSArray* texts = @[ @"plain", @"Ünïcode 😀", @"<&> \"'" ];
};

TEST_F(Files, paths_of_the_device_lie_in_its_root) {
    EXPECT_EQ(linuxPath("/var/mobile/x"), (device().root() / "var/mobile/x").string());
    EXPECT_EQ(linuxPath("/variable"), "/variable");
    EXPECT_EQ(linuxPath("/usr/share"), "/usr/share");
    EXPECT_TRUE(write(texts));
    EXPECT_TRUE(device().exists("/var/mobile/Library/list.plist"));
    EXPECT_TRUE([[NSArray arrayWithContentsOfFile:@"/private/var/mobile/Library/list.plist"] isEqual:texts]);
}

TEST_F(Files, every_way_of_the_c_library_reaches_the_same_file) {
    const char* file = "/var/mobile/file";
    const int descriptor = open(file, O_CREAT | O_WRONLY, 0640);
    ASSERT_GE(descriptor, 0);
    close(descriptor);
    struct stat facts{};
    EXPECT_EQ(stat("/private/var/mobile/file", &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777, 0640u);
    EXPECT_EQ(access(file, W_OK), 0);
    EXPECT_EQ(chmod(file, 0600), 0);
    EXPECT_EQ(rename(file, "/var/mobile/renamed"), 0);
    EXPECT_EQ(link("/var/mobile/renamed", file), 0);
    EXPECT_EQ(mkdir("/var/mobile/folder", 0755), 0);
    EXPECT_EQ(rmdir("/var/mobile/folder"), 0);
    char name[] = "/var/mobile/temporary-XXXXXX";
    const int temporary = mkstemp(name);
    ASSERT_GE(temporary, 0);
    close(temporary);
    EXPECT_EQ(std::string(name).find("XXXXXX"), std::string::npos);
    EXPECT_EQ(unlink(name), 0);
    EXPECT_FALSE(std::filesystem::exists(device().onLinux(name)));
    EXPECT_TRUE(device().exists(file));
}

TEST_F(Files, a_relative_path_resolves_in_the_working_directory) {
    std::filesystem::current_path(device().root());
    EXPECT_TRUE([texts writeToFile:@"var/mobile/Library/list.plist" atomically:YES]);
    EXPECT_TRUE([read() isEqual:texts]);
}

TEST_F(Files, what_is_no_property_list_is_not_written) {
    EXPECT_FALSE(write(@[ [[[NSObject alloc] init] autorelease] ]));
    EXPECT_FALSE(device().exists("/var/mobile/Library/list.plist"));
    EXPECT_FALSE([texts writeToFile:@"/var/mobile/no/such/folder/list.plist" atomically:YES]);
}

TEST_F(Files, a_full_disk_keeps_the_old_file_of_an_atomic_write) {
    ASSERT_TRUE(write(texts));
    fault([](Faults& faults) { faults.diskFull = true; });
    EXPECT_FALSE(write(@[ @"new" ]));
    EXPECT_TRUE([read() isEqual:texts]);
    EXPECT_EQ(mkdir("/var/mobile/folder", 0755), -1);
    EXPECT_EQ(errno, ENOSPC);
    fault([](Faults& faults) { faults.diskFull = false; });
    EXPECT_TRUE(write(@[ @"new" ]));
}

TEST_F(Files, a_full_disk_empties_the_file_of_a_plain_write) {
    ASSERT_TRUE(write(texts));
    fault([](Faults& faults) { faults.diskFull = true; });
    EXPECT_FALSE(write(@[ @"new" ], false));
    EXPECT_EQ(read(), nil);
}

TEST_F(Files, faults_hide_a_file_and_lock_it) {
    ASSERT_TRUE(write(texts));
    fault([](Faults& faults) { faults.unreadable = {"/private/var/mobile/Library/list.plist"}; });
    EXPECT_EQ(read(), nil);
    EXPECT_TRUE([[NSFileManager defaultManager] fileExistsAtPath:path]);
    EXPECT_EQ(open("/var/mobile/Library/list.plist", O_RDONLY), -1);
    EXPECT_EQ(errno, EACCES);
    fault([](Faults& faults) {
        faults.unreadable = {};
        faults.missing = {"/var/mobile/Library"};
    });
    EXPECT_EQ(read(), nil);
    EXPECT_FALSE([[NSFileManager defaultManager] fileExistsAtPath:path]);
    fault([](Faults& faults) { faults.missing = {}; });
    EXPECT_TRUE([read() isEqual:texts]);
}

struct Damage {
    const char* name;
    std::string bytes;
};

class DamagedFiles : public Files, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedFiles, read_as_nil_and_never_raise) {
    device().writeFile("/var/mobile/Library/list.plist", GetParam().bytes);
    EXPECT_EQ(exceptionOf([&] {
                  EXPECT_EQ([NSArray arrayWithContentsOfFile:path], nil);
                  EXPECT_EQ([[[NSMutableArray alloc] initWithContentsOfFile:path] autorelease], nil);
                  EXPECT_EQ([NSDictionary dictionaryWithContentsOfFile:path], nil);
                  EXPECT_EQ([NSMutableDictionary dictionaryWithContentsOfFile:path], nil);
              }),
              "");
}

const std::string xmlStart = "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">";

INSTANTIATE_TEST_SUITE_P(
    Files, DamagedFiles,
    testing::Values(Damage{"empty", ""}, Damage{"truncated", xmlStart + "<array><string>a</str"},
                    Damage{"unclosed", xmlStart + "<array><string>a</string>"},
                    Damage{"string", xmlStart + "<string>text</string></plist>"},
                    Damage{"bytes", std::string("\0\xff\xfe\x01\x80garbage\0", 13)},
                    Damage{"binary_header", "bplist00"},
                    Damage{"binary_garbage", std::string("bplist00\xff\xff\xff\xff\0\x01", 14)},
                    Damage{"binary_offsets", std::string("bplist00\xd1\x01\x02") + std::string(40, '\xff')},
                    Damage{"open_array", "( a, b"}, Damage{"open_dictionary", "{ a = b"},
                    Damage{"html", "<html><body>x</body></html>"}, Damage{"angle", "<"}),
    [](const auto& info) { return info.param.name; });

TEST_F(Files, text_that_is_no_utf8_reads_as_nil) {
    device().writeFile("/var/mobile/text", "\xff\xfe\xfd");
    NSError* error = nil;
    EXPECT_EQ([NSString stringWithContentsOfFile:@"/var/mobile/text"
                                        encoding:NSUTF8StringEncoding
                                           error:&error],
              nil);
    EXPECT_NE(error, nil);
    EXPECT_EQ([NSString stringWithContentsOfFile:@"/var/mobile/text"
                                        encoding:NSUTF8StringEncoding
                                           error:NULL],
              nil);
    EXPECT_EQ([NSString stringWithContentsOfFile:@"/var/mobile/none"
                                        encoding:NSUTF8StringEncoding
                                           error:NULL],
              nil);
    device().writeFile("/var/mobile/text", "");
    EXPECT_EQ([[NSString stringWithContentsOfFile:@"/var/mobile/text"
                                         encoding:NSUTF8StringEncoding
                                            error:NULL] length],
              0u);
}

TEST_F(Files, property_lists_go_out_and_in_as_json) {
    const nlohmann::json value = {{"list", {1, 2.5, true, "text"}}, {"nested", {{"off", false}}}};
    device().writePropertyList("/var/mobile/settings.plist", value);
    EXPECT_EQ(device().readPropertyList("/var/mobile/settings.plist"), value);
    EXPECT_NE(exceptionOf(
                  [&] { device().writePropertyList("/var/mobile/settings.plist", {{"nothing", nullptr}}); }),
              "");
    EXPECT_EQ(device().readPropertyList("/var/mobile/settings.plist"), value);
}

} // namespace
} // namespace simulator::test
