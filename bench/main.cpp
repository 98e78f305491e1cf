// Times the library's functions beside those of other libraries.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "bench/peers.h"
#include "bench/subject.h"

namespace {

constexpr const char* kUsage =
    "usage: zulgen-bench [--filter TEXT[,TEXT...]] [--plans N] [--rounds N] [--offset N]\n"
    "                    [--csv FILE] [--list]\n"
    "  --filter TEXT  functions whose name holds one of the texts (default: Fwd_CToC); with _N_\n"
    "                 for a length, those of that length\n"
    "  --plans N      FFTW plans to take the best of (default 4); 0 times our functions alone\n"
    "  --rounds N     samples of each in a pass (default 150)\n"
    "  --offset N     our arrays begin N elements behind a cache line (default 0)\n"
    "  --csv FILE     the figures as comma-separated values, too: nothing for a figure that could\n"
    "                 not be taken, - for a transform that the peer doesn't have\n"
    "  --list         only tell the functions' names\n";

struct Options {
  std::string filter = "Fwd_CToC";
  int plans = 4;
  int rounds = 150;
  int offset = 0;
  std::string csv;
  bool list = false;
};

// Whether the name holds one of the texts between the filter's commas.
bool passes(const std::string& name, const std::string& filter) {
  std::istringstream texts(filter);
  for (std::string text; std::getline(texts, text, ',');) {
    if ((name + "_").find(text) != std::string::npos) return true;
  }
  return false;
}

using Cycles = std::optional<double>;  // of a call

struct Figure {
  bool is_possible = false;  // whether the column's library has the transform
  Cycles cycles;             // nothing if other work disturbed it
};

// The best of some ways of computing the same.
Figure best(const Cycles* begin, const Cycles* end) {
  Figure result = {begin != end, {}};
  for (const Cycles* way = begin; way != end; ++way) {
    if (*way && (!result.cycles || **way < *result.cycles)) result.cycles = *way;
  }
  return result;
}

// One contender of each level, then the best of each peer.
std::vector<Figure> measure(const bench::Clock& clock, const bench::Subject& subject,
                            const Options& options, const std::vector<bench::Level>& levels,
                            const std::vector<std::unique_ptr<bench::Peer>>& peers) {
  static bench::Arrays arrays;
  std::vector<bench::Contender> contenders;
  std::vector<std::size_t> ends = {0};  // of the columns' contenders
  for (const bench::Level& level : levels) {
    contenders.push_back(calls_of(subject, level, arrays, options.offset));
    ends.push_back(contenders.size());
  }
  for (const auto& peer : peers) {
    for (bench::Contender& way : peer->ways(subject, arrays)) contenders.push_back(std::move(way));
    ends.push_back(contenders.size());
  }
  // A plan that destroys its input is given back what it left there, again and again. Only zeros
  // stay what they are; anything else grows to infinities, which cost x87 code dearly.
  const bool plans_may_destroy = subject.transform == "real" && subject.direction == "inverse";
  plans_may_destroy ? arrays.clear() : arrays.fill(subject);
  const std::vector<Cycles> cycles = cycles_per_call(clock, contenders, options.rounds);
  std::vector<Figure> figures;
  for (std::size_t i = 0; i + 1 < ends.size(); ++i) {
    figures.push_back(best(cycles.data() + ends[i], cycles.data() + ends[i + 1]));
  }
  return figures;
}

// Of the ratios of one column to another over all subjects.
struct Summary {
  double log_sum = 0, lowest = 0;
  int count = 0;
  std::string lowest_name;

  void add(const std::string& name, double ratio) {
    log_sum += std::log(ratio);
    if (count++ == 0 || ratio < lowest) {
      lowest = ratio;
      lowest_name = name;
    }
  }
};

std::string text_of(const Figure& figure, const char* disturbed) {
  char text[32];
  if (!figure.is_possible) return "-";
  if (!figure.cycles) return disturbed;
  std::snprintf(text, sizeof text, "%.1f", *figure.cycles);
  return text;
}

int run(const Options& options) {
  std::vector<bench::Subject> subjects = bench::subjects();
  std::erase_if(subjects,
                [&](const auto& subject) { return !passes(subject.name, options.filter); });
  if (subjects.empty()) {
    std::fprintf(stderr, "zulgen-bench: nothing is called %s\n", options.filter.c_str());
    return 2;
  }
  if (options.list) {
    for (const bench::Subject& subject : subjects) std::puts(subject.name.c_str());
    return 0;
  }
  const bench::Clock clock;
  const std::vector<bench::Level> levels = bench::levels();
  std::vector<std::unique_ptr<bench::Peer>> peers;
  if (options.plans > 0) {
    peers.push_back(bench::fftw_held_to_sse2(options.plans));
    peers.push_back(bench::fftw_installed(options.plans));
    peers.push_back(bench::kissfft());
    if (!peers[0]) std::puts("built without FFTW: the README tells how to get it");
    std::erase(peers, nullptr);
  }
  std::vector<std::string> columns;
  for (const bench::Level& level : levels) columns.push_back(level.name);
  for (const auto& peer : peers) columns.push_back(peer->name());

  std::FILE* csv = options.csv.empty() ? nullptr : std::fopen(options.csv.c_str(), "w");
  if (!options.csv.empty() && csv == nullptr) {
    std::fprintf(stderr, "zulgen-bench: can't write %s\n", options.csv.c_str());
    return 1;
  }
  std::printf(
      "core cycles a call; bound: what the arithmetic of 128-bit code keeps its ports busy\n");
  std::printf("%-28s %9s", "function", "bound");
  if (csv) std::fprintf(csv, "function,length");
  for (const std::string& column : columns) {
    std::printf(" %11s", column.c_str());
    if (csv) std::fprintf(csv, ",%s", column.c_str());
  }
  std::printf("\n");
  if (csv) std::fprintf(csv, "\n");

  std::map<std::pair<std::size_t, std::size_t>, Summary> summaries;  // by peer and level
  int given_up = 0;
  for (const bench::Subject& subject : subjects) {
    const std::vector<Figure> figures = measure(clock, subject, options, levels, peers);
    std::printf("%-28s %9.1f", subject.name.c_str(), subject.port_bound);
    if (csv) std::fprintf(csv, "%s,%d", subject.name.c_str(), subject.length);
    for (const Figure& figure : figures) {
      given_up += figure.is_possible && !figure.cycles;
      std::printf(" %11s", text_of(figure, "disturbed").c_str());
      if (csv) std::fprintf(csv, ",%s", text_of(figure, "").c_str());
    }
    std::printf("\n");
    std::fflush(stdout);
    if (csv) std::fprintf(csv, "\n");
    for (std::size_t level = 0; level < levels.size(); ++level) {
      for (std::size_t peer = levels.size(); peer < figures.size(); ++peer) {
        if (!figures[level].cycles || !figures[peer].cycles) continue;
        summaries[{peer, level}].add(subject.name, *figures[peer].cycles / *figures[level].cycles);
      }
    }
  }
  for (const auto& [pair, summary] : summaries) {
    std::printf("%s over %s, %d functions: geometric mean %.3f, least %.3f (%s)\n",
                columns[pair.first].c_str(), columns[pair.second].c_str(), summary.count,
                std::exp(summary.log_sum / summary.count), summary.lowest,
                summary.lowest_name.c_str());
  }
  if (given_up > 0) {
    std::printf("%d figures are missing: other work on this machine did not let two passes agree\n",
                given_up);
  }
  if (csv) std::fclose(csv);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  for (int i = 1; i < argc; ++i) {
    const std::string option = argv[i];
    const char* value = i + 1 < argc ? argv[i + 1] : nullptr;
    if (option == "--list") {
      options.list = true;
      continue;
    }
    ++i;
    if (value != nullptr && option == "--filter") {
      options.filter = value;
    } else if (value != nullptr && option == "--plans") {
      options.plans = std::atoi(value);
    } else if (value != nullptr && option == "--rounds") {
      options.rounds = std::atoi(value);
    } else if (value != nullptr && option == "--offset") {
      options.offset = std::atoi(value);
    } else if (value != nullptr && option == "--csv") {
      options.csv = value;
    } else {
      std::fputs(kUsage, option == "--help" ? stdout : stderr);
      return option == "--help" ? 0 : 2;
    }
  }
  try {
    return run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "zulgen-bench: %s\n", error.what());
    return 1;
  }
}
