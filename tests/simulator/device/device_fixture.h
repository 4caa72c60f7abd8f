// A device of its own for each test, mounted in the test's process without any application.
#pragma once

#include "device/root.h"
#include "support/library_fixture.h"

namespace simulator::test {

class DeviceTest : public LibraryTest {
  protected:
    DeviceTest() { mountDevice(device().folder()); }
    ~DeviceTest() override { mountDevice({}); }
};

} // namespace simulator::test
