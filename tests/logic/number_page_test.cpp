// The table of format kinds on the numeric edit's page.
#include "core/text.h"
#include "numeric/number_format.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace vorn::numeric {
namespace {

// The cells of a row, without blanks and backquotes around them.
std::vector<std::string> CellsOf(const std::string& row) {
    std::vector<std::string> cells;
    std::istringstream rest(row.substr(1));
    for (std::string cell; std::getline(rest, cell, '|');) {
        const auto first = cell.find_first_not_of(" `");
        const auto last = cell.find_last_not_of(" `\r");
        cells.push_back(first == std::string::npos ? "" : cell.substr(first, last - first + 1));
    }
    return cells;
}

// Heading and rows of the page's first table.
std::vector<std::vector<std::string>> FirstTable() {
    std::ifstream page(VORN_SOURCE_DIR "/docs/numedit.md");
    std::vector<std::vector<std::string>> rows;
    for (std::string line; std::getline(page, line);) {
        if (!line.empty() && line[0] == '|') {
            rows.push_back(CellsOf(line));
        } else if (!rows.empty()) {
            break;
        }
    }
    return rows;
}

TEST(NumberPage, ShowsEachKindAsItIsDisplayed) {
    const auto table = FirstTable();
    constexpr std::size_t kHeadings = 2; // and the line below it
    constexpr std::size_t kFirstExample = 2;
    ASSERT_EQ(table.size(), kHeadings + 10) << "the ten kinds";
    ASSERT_GT(table[0].size(), kFirstExample);
    for (std::size_t row = kHeadings; row < table.size(); ++row) {
        NumberSettings settings;
        settings.formatKind = static_cast<std::uint32_t>(row - kHeadings);
        settings.decimalDigits = 2;
        EXPECT_EQ(table[row][0], std::to_string(settings.formatKind));
        ASSERT_EQ(table[row].size(), table[0].size());
        for (std::size_t column = kFirstExample; column < table[0].size(); ++column) {
            char text[kNumberTextSize];
            CopyText(text, table[0][column].c_str());
            char displayed[kNumberTextSize];
            FormatNumber(settings, text, 0, displayed);
            EXPECT_EQ(table[row][column], displayed) << row << ", " << table[0][column];
        }
    }
}

} // namespace
} // namespace vorn::numeric
