#include "support/table.h"

#include "support/environment.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace simulator::test {

namespace {

std::vector<std::string> split(const std::string& line) {
    std::vector<std::string> cells;
    std::istringstream stream(line + '\t');
    for (std::string cell; std::getline(stream, cell, '\t');)
        cells.push_back(cell);
    return cells;
}

std::runtime_error notARow(const std::string& fileName, const std::string& line) {
    return std::runtime_error(fileName + ": not a row: " + line);
}

} // namespace

std::vector<TableRow> readTable(const std::string& fileName) {
    std::ifstream file(dataDirectory() + "/" + fileName);
    if (!file) throw std::runtime_error("no table " + fileName);
    std::vector<std::string> columns;
    std::vector<TableRow> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        const auto cells = split(line);
        if (columns.empty()) {
            columns = cells;
            continue;
        }
        if (cells.size() != columns.size()) throw notARow(fileName, line);
        TableRow& row = rows.emplace_back();
        for (std::size_t index = 0; index < cells.size(); ++index)
            row[columns[index]] = cells[index];
    }
    return rows;
}

} // namespace simulator::test
