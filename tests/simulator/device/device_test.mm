#include "simulator/device/device_test.h"

#include "device/exceptions.h"
#include "device/root.h"
#include "support/environment.h"

#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace simulator::test {
namespace {

std::filesystem::path makeFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "device-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    return name;
}

} // namespace

DeviceTest::DeviceTest()
    : m_pool([[NSAutoreleasePool alloc] init]), m_folder(makeFolder()), m_device(Device::create(m_folder)) {
    mountDevice(m_folder);
    [[NSRunLoop currentRunLoop] addPort:[NSPort port] forMode:NSDefaultRunLoopMode];
}

DeviceTest::~DeviceTest() {
    mountDevice({});
    [m_pool drain];
    std::filesystem::remove_all(m_folder);
}

HostProcessOptions DeviceTest::hostProcess(const std::string& bundleIdentifier) const {
    HostProcessOptions options{
        .program = hostProgram(), .bundleIdentifier = bundleIdentifier, .device = m_folder, .library = {}};
    std::istringstream words(emulator());
    for (std::string word; words >> word;)
        options.emulator.push_back(word);
    return options;
}

bool DeviceTest::runUntil(const std::function<bool()>& condition, double timeout) {
    NSDate* end = [NSDate dateWithTimeIntervalSinceNow:timeout];
    while (!condition() && [end timeIntervalSinceNow] > 0) {
        @autoreleasepool {
            [[NSRunLoop currentRunLoop] runMode:NSDefaultRunLoopMode
                                     beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        }
    }
    return condition();
}

std::string exceptionOf(const std::function<void()>& work) { return anyExceptionOf(work).value_or(""); }

} // namespace simulator::test
