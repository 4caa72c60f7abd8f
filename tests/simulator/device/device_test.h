// A device of its own for each test, mounted in the test's process.
#pragma once

#include "device/device.h"
#include "hosts/client.h"

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

namespace simulator::test {

class DeviceTest : public testing::Test {
  protected:
    DeviceTest();
    ~DeviceTest() override;

    const Device& device() const { return m_device; }

    // Options for a host process of this build on this device, without a library.
    HostProcessOptions hostProcess(const std::string& bundleIdentifier) const;

    // Runs the main run loop until the condition holds; false after `timeout` seconds.
    static bool runUntil(const std::function<bool()>& condition, double timeout = 5);

  private:
    NSAutoreleasePool* m_pool;
    std::filesystem::path m_folder;
    Device m_device;
};

// What the exception that leaves `work` says, of either kind; empty when none does.
std::string exceptionOf(const std::function<void()>& work);

} // namespace simulator::test
