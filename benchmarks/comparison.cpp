#include "comparison.h"

#include <cstdio>

namespace {

struct Pair
{
    std::string name;
    double bound;
};
std::vector<Pair> pairs;

const char *const oursSuffix = "/ours";
const char *const stockSuffix = "/stock";

void registerSide(const std::string &name, const Work &work)
{
    const auto run = [work](benchmark::State &state) {
        for (auto _ : state) {
            const auto cleanUp = work();
            state.PauseTiming();
            cleanUp();
            state.ResumeTiming();
        }
    };
    benchmark::RegisterBenchmark(name.c_str(), run)->Unit(benchmark::kMillisecond);
}

} // namespace

void compare(const std::string &name, double bound, const Work &ours, const Work &stock)
{
    pairs.push_back({name, bound});
    registerSide(name + oursSuffix, ours);
    registerSide(name + stockSuffix, stock);
}

bool ComparisonReporter::ReportContext(const Context &)
{
    std::printf("%-44s %10s %10s %7s %7s\n", "CPU medians", "ours ms", "stock ms", "ratio", "bound");
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
        if (ours <= 0 || stock <= 0)
            continue; // filtered out
        const double ratio = ours / stock;
        const bool over = ratio > pair.bound;
        m_overBound += over;
        std::printf("%-44s %10.3f %10.3f %7.3f %7.2f%s\n", pair.name.c_str(), ours, stock, ratio,
                    pair.bound, over ? "  over" : "");
    }
}
