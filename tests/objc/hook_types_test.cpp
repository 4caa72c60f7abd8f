// The types that the functions of the hook table are compiled for are those of the device's methods.
#include "device/releases.h"
#include "startup/hook_table.h"
#include "support/table.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace rollkeeper::test {
namespace {

std::string nameOf(const std::string& className, char kind, const std::string& selector) {
    return className + " " + kind + selector;
}

std::string nameOf(const HookRow& row) {
    return nameOf(row.className, row.method == MethodKind::classMethod ? '+' : '-', row.selector);
}

TEST(HookTypes, replacements_have_the_types_of_the_methods_on_the_device) {
    std::map<std::string, std::string> encodings;
    for (const simulator::SignatureRow& row : simulator::signatureTable())
        encodings[nameOf(row.className, row.kind, row.selector)] = row.encoding;
    for (const HookRow& row : hookTable())
        if (row.function.slot) EXPECT_EQ(row.function.encoding, encodings[nameOf(row)]) << nameOf(row);
}

TEST(HookTypes, additions_have_the_types_that_their_callers_use) {
    std::map<std::string, std::string> encodings;
    for (const auto& row : simulator::test::readTable("hook-table.tsv"))
        encodings[nameOf(row.at("class"), row.at("kind")[0], row.at("selector"))] = row.at("encoding");
    for (const HookRow& row : hookTable())
        if (!row.function.slot) EXPECT_EQ(row.function.encoding, encodings[nameOf(row)]) << nameOf(row);
}

} // namespace
} // namespace rollkeeper::test
