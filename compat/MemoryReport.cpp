#include "compat/MemoryReport.h"

#include <string_view>

namespace {

struct Line
{
    std::string_view label;
    std::string_view column;
    std::size_t nColumnWidth;
    bool bCounter;
};

constexpr std::size_t nLabelWidth = 30;
constexpr std::size_t nCountWidth = 17;

constexpr std::string_view header = "Mach Virtual Memory Statistics: (page size of 4096 bytes)\n";

constexpr std::array<Line, nFigures> lines = {{
    {"Pages free:", "free", 8, false},
    {"Pages active:", "active", 8, false},
    {"Pages inactive:", "inactive", 8, false},
    {"Pages speculative:", "specul", 8, false},
    {"Pages throttled:", "throttle", 8, false},
    {"Pages wired down:", "wired", 8, false},
    {"Pages purgeable:", "prgable", 8, false},
    {"\"Translation faults\":", "faults", 8, true},
    {"Pages copy-on-write:", "copy", 8, true},
    {"Pages zero filled:", "0fill", 8, true},
    {"Pages reactivated:", "reactive", 8, true},
    {"Pages purged:", "purged", 8, true},
    {"File-backed pages:", "file-backed", 11, false},
    {"Anonymous pages:", "anonymous", 9, false},
    {"Pages stored in compressor:", "cmprssed", 8, false},
    {"Pages occupied by compressor:", "cmprssor", 8, false},
    {"Decompressions:", "dcomprs", 8, true},
    {"Compressions:", "comprs", 8, true},
    {"Pageins:", "pageins", 8, true},
    {"Pageouts:", "pageout", 8, true},
    {"Swapins:", "swapins", 8, true},
    {"Swapouts:", "swapouts", 8, true},
}};

/// The table has its columns in the report's order, but for the speculative pages before the inactive ones.
constexpr std::size_t FigureOfColumn(std::size_t nColumn)
{
    switch (nColumn) {
    case Inactive:
        return Speculative;
    case Speculative:
        return Inactive;
    default:
        return nColumn;
    }
}

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

std::string MemoryReport(const MemoryFigures &figures)
{
    std::string report(header);
    for (std::size_t figure = 0; figure < nFigures; ++figure) {
        report += lines[figure].label;
        report.append(nLabelWidth - lines[figure].label.size(), ' ');
        AppendRight(report, std::to_string(figures[figure]), nCountWidth);
        report += ".\n";
    }
    return report;
}

std::string MemoryTableHeader()
{
    std::string table(header);
    for (std::size_t column = 0; column < nFigures; ++column) {
        const Line &line = lines[FigureOfColumn(column)];
        AppendRight(table, line.column, line.nColumnWidth);
        table += column + 1 < nFigures ? ' ' : '\n';
    }
    return table;
}

std::string MemoryTableLine(const MemoryFigures &now, const MemoryFigures &before)
{
    std::string table;
    for (std::size_t column = 0; column < nFigures; ++column) {
        const std::size_t figure = FigureOfColumn(column);
        const Line &line = lines[figure];
        std::uint64_t number = now[figure];
        if (line.bCounter) {
            number -= number > before[figure] ? before[figure] : number;
        }
        AppendRight(table, ShortNumber(number, line.nColumnWidth), line.nColumnWidth);
        table += column + 1 < nFigures ? ' ' : '\n';
    }
    return table;
}
