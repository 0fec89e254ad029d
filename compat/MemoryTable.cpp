#include "compat/MemoryTable.h"

#include "compat/MemoryReport.h"

#include <algorithm>
#include <string_view>

namespace {

struct Column
{
    Figure figure;
    std::string_view title;
    std::size_t nWidth;
    bool bCounter = false;
};

constexpr std::array<Column, nFigures> columns = {{
    {Free, "free", 8},
    {Active, "active", 8},
    {Speculative, "specul", 8},
    {Inactive, "inactive", 8},
    {Throttled, "throttle", 8},
    {WiredDown, "wired", 8},
    {Purgeable, "prgable", 8},
    {TranslationFaults, "faults", 8, true},
    {CopyOnWrite, "copy", 8, true},
    {ZeroFilled, "0fill", 8, true},
    {Reactivated, "reactive", 8, true},
    {Purged, "purged", 8, true},
    {FileBacked, "file-backed", 11},
    {Anonymous, "anonymous", 9},
    {StoredInCompressor, "cmprssed", 8},
    {OccupiedByCompressor, "cmprssor", 8},
    {Decompressions, "dcomprs", 8, true},
    {Compressions, "comprs", 8, true},
    {Pageins, "pageins", 8, true},
    {Pageouts, "pageout", 8, true},
    {Swapins, "swapins", 8, true},
    {Swapouts, "swapouts", 8, true},
}};

void AppendRight(std::string &text, std::string_view word, std::size_t nWidth)
{
    text.append(nWidth > word.size() ? nWidth - word.size() : 0, ' ');
    text += word;
}

std::string ShortNumber(std::uint64_t number, std::size_t nWidth)
{
    std::string text = std::to_string(number);
    for (const char unit : {'K', 'M', 'G'}) {
        if (text.size() <= nWidth) {
            break;
        }
        number /= 1000;
        text = std::to_string(number) + unit;
    }
    return text;
}

} // namespace

std::string MemoryTableHeader()
{
    std::string table(memoryReportHeader);
    for (const Column &column : columns) {
        AppendRight(table, column.title, column.nWidth);
        table += &column == &columns.back() ? '\n' : ' ';
    }
    return table;
}

std::string MemoryTableLine(const MemoryFigures &now, const MemoryFigures &before)
{
    std::string table;
    for (const Column &column : columns) {
        std::uint64_t number = now[column.figure];
        if (column.bCounter) {
            number -= std::min(number, before[column.figure]);
        }
        AppendRight(table, ShortNumber(number, column.nWidth), column.nWidth);
        table += &column == &columns.back() ? '\n' : ' ';
    }
    return table;
}
