// Tables of tests/data: tab-separated, with a line of column names; lines that begin with # are comments.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace simulator::test {

using TableRow = std::map<std::string, std::string>;

// Throws std::runtime_error when the file is missing or a line has the wrong number of columns.
std::vector<TableRow> readTable(const std::string& fileName);

} // namespace simulator::test
