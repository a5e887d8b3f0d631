#ifndef TAVIK_BENCHMARKS_COMPARISON_H
#define TAVIK_BENCHMARKS_COMPARISON_H

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

/// One side of a comparison: does the work once and returns what cleans up after it, which is not
/// measured.
using Work = std::function<std::function<void()>()>;

/// Registers ours and the stock way as a pair, to be measured side by side in the same run. Slow work may
/// ask for less repetitions than the usual ones.
void compare(const std::string &name, double bound, const Work &ours, const Work &stock,
             int repetitions = 0);

/// Registers a pair of figures that come as they are, each asked for once: times that were measured elsewhere,
/// in milliseconds, or thousands of something else.
void compareFigures(const std::string &name, double bound, const std::function<double()> &ours,
                    const std::function<double()> &stock);

/// Prints each pair as one row of a table: both sides (medians, if they are times), their ratio and its
/// bound.
class ComparisonReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

    /// How many pairs came out above their bound; known after the run.
    int overBound() const { return m_overBound; }

private:
    void printRow(const std::string &name, double ours, double stock, double bound);

    std::map<std::string, double> m_medians; // in milliseconds, by the benchmark's name
    int m_overBound = 0;
};

#endif
