#include "loader/loader.h"

#include "support/environment.h"

#include <gtest/gtest.h>

#include <fstream>

namespace simulator {
namespace {

std::string messageOf(const LoadResult& result) {
    const auto* error = std::get_if<LoadError>(&result);
    return error != nullptr ? error->message : "loaded";
}

TEST(Loader, names_a_file_that_is_missing) {
    EXPECT_NE(messageOf(loadLibrary("/nonexistent/library")).find("/nonexistent/library"), std::string::npos);
}

} // namespace
} // namespace simulator
