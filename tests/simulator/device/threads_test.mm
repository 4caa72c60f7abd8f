// What an exception that nobody catches does to an application.
#include "device/threads.h"

#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

namespace simulator::test {
namespace {

TEST(Events, end_the_application_when_they_raise) {
    EXPECT_DEATH(runAsEvent([] { [NSException raise:@"TestException" format:@"the reason"]; }),
                 "uncaught exception TestException: the reason");
}

} // namespace
} // namespace simulator::test
