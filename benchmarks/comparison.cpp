#include "comparison.h"

#include <cstdio>

namespace {

struct Pair
{
    std::string name;
    double bound;
};
std::vector<Pair> pairs;

struct Figures
{
    std::string name;
    double bound;
    std::function<double()> ours;
    std::function<double()> stock;
};
std::vector<Figures> allFigures;

const char *const oursSuffix = "/ours";
const char *const stockSuffix = "/stock";

void registerSide(const std::string &name, const Work &work, int repetitions)
{
    const auto run = [work](benchmark::State &state) {
        for (auto _ : state) {
            const auto cleanUp = work();
            state.PauseTiming();
            cleanUp();
            state.ResumeTiming();
        }
    };
    auto *side = benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
    if (repetitions > 0)
        side->Repetitions(repetitions)->Iterations(1);
}

} // namespace

void compare(const std::string &name, double bound, const Work &ours, const Work &stock, int repetitions)
{
    pairs.push_back({name, bound});
    registerSide(name + oursSuffix, ours, repetitions);
    registerSide(name + stockSuffix, stock, repetitions);
}

void compareFigures(const std::string &name, double bound, const std::function<double()> &ours,
                    const std::function<double()> &stock)
{
    allFigures.push_back({name, bound, ours, stock});
}

bool ComparisonReporter::ReportContext(const Context &)
{
    std::printf("%-50s %10s %10s %7s %7s\n", "CPU medians", "ours ms", "stock ms", "ratio", "bound");
    return true;
}

void ComparisonReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
            m_medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
}

void ComparisonReporter::Finalize()
{
    for (const Pair &pair : pairs) {
        const double ours = m_medians[pair.name + oursSuffix];
        const double stock = m_medians[pair.name + stockSuffix];
        if (ours > 0 && stock > 0) // else it was filtered out
            printRow(pair.name, ours, stock, pair.bound);
    }
    for (const Figures &figures : allFigures)
        printRow(figures.name, figures.ours(), figures.stock(), figures.bound);
}

void ComparisonReporter::printRow(const std::string &name, double ours, double stock, double bound)
{
    const double ratio = ours / stock;
    const bool over = ratio > bound;
    m_overBound += over;
    std::printf("%-50s %10.3f %10.3f %7.3f %7.2f%s\n", name.c_str(), ours, stock, ratio, bound,
                over ? "  over" : "");
}
