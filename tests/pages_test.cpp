// The reference pages: what they show is what the kernels do and what was measured.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <random>
#include <regex>
#include <set>
#include <sstream>

#include "docs/pages/chart.h"
#include "docs/pages/decomposition.h"
#include "docs/pages/layered_layout.h"
#include "docs/pages/markdown.h"
#include "docs/pages/prototypes.h"
#include "docs/pages/site.h"
#include "docs/pages/tables.h"
#include "generate/manifest.h"

namespace {

using namespace pages;

const std::string kMeasured = "zulgDFTFwd_CToC_12_32fc";

// Figures of one kernel; all others aren't measured.
const Catalogue& catalogue() {
  static const Catalogue result = [] {
    Figures figures;
    figures.error[kMeasured] = 1.234;
    figures.cycles["x86-64"][kMeasured] = {
        {"x86-64-v3", {98.76}}, {"fftw", {200.0}}, {"kissfft", {std::nullopt, false}}};
    figures.machine = {{"processor", "A & B"}};
    const std::string targets = SOURCE_DIR "/targets/";
    return make_catalogue(figures, {generate::read_target(targets + "x86-64", targets + "x86-64"),
                                    generate::read_target(targets + "i386", targets + "i386")});
  }();
  return result;
}

// A drawn flow as the function that a reader would take it for.
std::vector<double> evaluated(const FlowGraph& flow, const std::vector<double>& samples) {
  std::vector<std::vector<FlowEdge>> into(flow.nodes.size());
  for (const FlowEdge& edge : flow.edges) into[edge.to].push_back(edge);
  std::vector<double> value(flow.nodes.size());
  std::vector<double> results;
  for (std::size_t i = 0; i < flow.nodes.size(); ++i) {
    const FlowNode& node = flow.nodes[i];
    for (const FlowEdge& edge : into[i]) {
      EXPECT_LT(edge.from, static_cast<int>(i));
      value[i] += edge.subtracted ? -value[edge.from] : value[edge.from];
    }
    if (node.kind == FlowNode::Kind::kSource)
      value[i] = samples.at(std::stoi(node.label.substr(1)));
    if (node.kind == FlowNode::Kind::kProduct) value[i] *= std::stod(node.hint);
    if (node.kind == FlowNode::Kind::kDestination) results.push_back(value[i]);
  }
  return results;
}

TEST(Flow, IsTheTransform) {
  for (int n = 2; n <= 64; ++n) {
    std::vector<std::string> names;
    for (int i = 0; i < n + 2; ++i) names.push_back(std::to_string(i));
    const FlowGraph flow = flow_graph(
        catalogue().at(n, Transform::kRealForward, gen::Precision::kDouble).kernel.graph(), names);
    std::vector<double> samples;
    for (int i = 0; i < n; ++i) samples.push_back(std::cos(i * i + 1));
    const std::vector<double> drawn = evaluated(flow, samples);
    ASSERT_EQ(drawn.size(), static_cast<std::size_t>(n));
    std::size_t at = 0;
    for (const FlowNode& node : flow.nodes) {
      if (node.kind != FlowNode::Kind::kDestination) continue;
      const int element = std::stoi(node.label);
      double bin = 0;
      for (int i = 0; i < n; ++i) {
        const double turn = 2 * M_PI * i * (element / 2) / n;
        bin += samples[i] * (element % 2 == 0 ? std::cos(turn) : -std::sin(turn));
      }
      EXPECT_NEAR(drawn[at++], bin, 1e-12 * n) << n << ", element " << element;
    }
  }
}

TEST(Flow, HasNoPictureOfVectors) {
  gen::Graph graph(gen::Precision::kDouble);
  graph.output(0, graph.lanes({{graph.input(0).node, 0}, {graph.input(1).node, 0}}));
  EXPECT_THROW(flow_graph(graph, {"X"}), std::logic_error);
}

TEST(Layout, PlacesNeighboursAsNearAsTheyMayStand) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> uniform(0, 10);
  const auto distance = [](const std::vector<double>& a, const std::vector<double>& b) {
    double sum = 0;
    for (std::size_t i = 0; i < a.size(); ++i) sum += (a[i] - b[i]) * (a[i] - b[i]);
    return sum;
  };
  for (int trial = 0; trial < 50; ++trial) {
    std::vector<double> wanted(1 + trial % 8), apart(wanted.size() - 1);
    for (double& w : wanted) w = uniform(random);
    for (double& a : apart) a = uniform(random) / 3;
    const std::vector<double> found = nearest_positions(wanted, apart);
    for (std::size_t i = 0; i < apart.size(); ++i) {
      EXPECT_GE(found[i + 1] - found[i], apart[i] - 1e-9);
    }
    // The problem is convex: it is enough that no small step inside of what is allowed helps.
    for (int step = 0; step < 300; ++step) {
      std::vector<double> other = found;
      for (double& position : other) position += (uniform(random) - 5) * 0.01;
      for (std::size_t i = 0; i < apart.size(); ++i) {
        other[i + 1] = std::max(other[i + 1], other[i] + apart[i]);
      }
      EXPECT_GE(distance(other, wanted), distance(found, wanted) - 1e-9);
    }
  }
}

TEST(Layout, LeadsFromLeftToRightWithoutOverlaps) {
  std::mt19937 random(2);
  for (int trial = 0; trial < 20; ++trial) {
    const int count = 5 + 7 * trial;
    std::vector<Size> nodes;
    std::vector<Arc> arcs;
    for (int i = 0; i < count; ++i) {
      nodes.push_back({10.0 + static_cast<double>(random() % 50), 15});
      for (int operand = 0; operand < 2 && i >= 4; ++operand) {
        arcs.push_back({static_cast<int>(random() % i), i});
      }
    }
    const Layout layout = lay_out(nodes, arcs, {});
    for (std::size_t i = 0; i < arcs.size(); ++i) {
      const int span = layout.columns[arcs[i].to] - layout.columns[arcs[i].from];
      ASSERT_GT(span, 0);
      ASSERT_EQ(layout.routes[i].size(), static_cast<std::size_t>(2 * span));
      EXPECT_EQ(layout.routes[i].front().y, layout.centres[arcs[i].from].y);
      EXPECT_EQ(layout.routes[i].back().y, layout.centres[arcs[i].to].y);
      for (std::size_t point = 1; point < layout.routes[i].size(); ++point) {
        EXPECT_GE(layout.routes[i][point].x, layout.routes[i][point - 1].x);
      }
    }
    for (int i = 0; i < count; ++i) {
      EXPECT_GE(layout.centres[i].y, nodes[i].height / 2 - 1e-9);
      EXPECT_LE(layout.centres[i].y, layout.size.height - nodes[i].height / 2 + 1e-9);
      for (int other = 0; other < i; ++other) {
        if (layout.columns[other] != layout.columns[i]) continue;
        EXPECT_GE(std::abs(layout.centres[i].y - layout.centres[other].y), 15 + 8 - 1e-9);
      }
    }
  }
  EXPECT_THROW(lay_out({{1, 1}, {1, 1}}, {{0, 1}, {1, 0}}, {}), std::invalid_argument);
  EXPECT_THROW(lay_out({{1, 1}}, {{0, 1}}, {}), std::invalid_argument);
}

void check_branch(const Branch& branch, const std::string& where) {
  const auto notes = [&](const char* text) { return branch.note.find(text) != std::string::npos; };
  if (branch.parts.empty()) {
    EXPECT_TRUE((std::set{2, 3, 4, 5, 7, 11}).contains(branch.length)) << where;
  } else if (notes("Cooley-Tukey") || notes("prime factor")) {
    EXPECT_EQ(branch.length, branch.parts[0].length * branch.parts[1].length) << where;
  } else if (notes("Rader")) {
    EXPECT_EQ(branch.length, branch.parts[0].length + 1) << where;
  } else if (notes("butterflies")) {
    EXPECT_EQ(branch.length, branch.parts[0].length) << where;
  }
  for (const Branch& part : branch.parts) check_branch(part, where);
}

TEST(Decomposition, GoesDownToShortBlocks) {
  for (const auto& [length, entries] : catalogue().by_length) {
    for (const auto& [key, entry] : entries) {
      const Branch branch = decomposition(key.first, entry.kernel);
      EXPECT_EQ(branch.length, length);
      check_branch(branch, entry.kernel.name);
    }
  }
}

TEST(Figures, AreReadByTheirColumnsNames) {
  std::istringstream in("length,function,i386\n12,a,3.5\n13,b,\n14,c,-\n");
  const std::vector<CsvRow> rows = read_csv(in, "i386.csv", {"function", "i386"});
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].at("function"), "a");
  std::string text;
  for (const CsvRow& row : rows) text += shown(figure_of(row.at("i386")), 2) + " ";
  EXPECT_EQ(text, "3.50 n.&#160;m. – ");
  for (const char* text : {"function\na\n", "function,i386\na\n", "function,i386\na,1,2\n", ""}) {
    std::istringstream bad(text);
    EXPECT_THROW(read_csv(bad, "i386.csv", {"function", "i386"}), std::runtime_error) << text;
  }
  for (const char* text : {"0", "1.5x", "fast", "nan"}) {
    EXPECT_THROW(figure_of(text), std::runtime_error) << text;
  }
}

// What is checked in can be shown, and is of functions that there are.
TEST(Figures, AreOfFunctionsThatThereAre) {
  const Figures figures = read_figures(SOURCE_DIR "/docs/measured");
  std::set<std::string> known;
  for (const std::string& name : generate::exported_functions()) known.insert(name);
  for (const Group& group : groups(catalogue())) {
    for (const auto& [length, function] : group.functions) known.insert(function);
  }
  for (const auto& [architecture, rows] : figures.cycles) {
    for (const auto& [function, row] : rows) {
      const std::size_t plan = function.find("DCT4Init_");
      const std::string name =
          plan == std::string::npos ? function : std::string(function).erase(plan + 4, 4);
      EXPECT_TRUE(known.contains(name)) << function;
    }
  }
}

TEST(Figures, AreSummedUpGeometrically) {
  RatioSummary summary;
  summary.add(2, 4);
  summary.add(3, 1);
  summary.add(5, 2);
  EXPECT_DOUBLE_EQ(summary.mean(), 2);
  EXPECT_EQ(summary.lowest(), 1);
  EXPECT_EQ(summary.lowest_length(), 3);
}

TEST(Chart, HasFewRoundTicksAroundItsValues) {
  for (const bool is_logarithmic : {false, true}) {
    for (const auto& [low, high] : {std::pair{0.3, 0.9}, {7.0, 8.0}, {5.0, 5000.0}, {1.0, 1.0}}) {
      const std::vector<double> found = ticks(low, high, is_logarithmic);
      EXPECT_LE(found.front(), low);
      EXPECT_GE(found.back(), high);
      EXPECT_TRUE(found.size() >= 2 || low == high) << low << " " << high;
      EXPECT_LE(found.size(), 11u);
      EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
    }
  }
  EXPECT_EQ(chart_picture({"nothing", "u", false, 0, 0, {{"a", {}}}}), "");
}

std::string file(const std::string& name) {
  std::ifstream in(SOURCE_DIR "/" + name);
  return {std::istreambuf_iterator<char>(in), {}};
}

// All pages by their file names.
const std::map<std::string, std::string>& site() {
  static const std::map<std::string, std::string> result = [] {
    std::map<std::string, std::string> files = {
        {kIndexPageName, index_page(catalogue())},
        {kOthersPageName, others_page(catalogue())},
        {kFinderPageName, finder_page(catalogue(), prototypes_of(SOURCE_DIR "/include/zulgen"))},
        {kReadingPageName, reading_page(catalogue().figures)},
        {kManualPageName, manual_page(file("docs/manual.md"))},
        {kFinderScriptName, ""},
        {"style.css", ""}};
    for (const Architecture& architecture : kArchitectures) {
      files[speed_page_name(architecture)] = speed_page(catalogue(), architecture);
    }
    for (const auto& [length, entries] : catalogue().by_length) {
      const Flow flow = flow_of_length(catalogue(), length, "");
      files[flow_picture_name(length)] = flow.picture.svg;
      files[length_page_name(length)] = length_page(catalogue(), length, flow);
    }
    return files;
  }();
  return result;
}

std::set<std::string> matches(const std::string& text, const std::string& pattern, int group = 1) {
  const std::regex regex(pattern);
  return {std::sregex_token_iterator(text.begin(), text.end(), regex, group), {}};
}

TEST(Site, LeadsNowhereElse) {
  for (const auto& [name, text] : site()) {
    if (!name.ends_with(".html")) continue;
    for (const std::string& link : matches(text, "(?:href|src)=\"([^\"]*)\"")) {
      const std::size_t hash = link.find('#');
      const std::string file = hash == 0 ? name : link.substr(0, hash);
      ASSERT_TRUE(site().contains(file)) << name << " leads to " << link;
      if (hash == std::string::npos) continue;
      const std::string anchor = "id=\"" + link.substr(hash + 1) + "\"";
      EXPECT_NE(site().at(file).find(anchor), std::string::npos) << name << ": " << link;
    }
  }
  const std::set<std::string> lengths =
      matches(site().at("index.html"), "<td class=\"n\"><a href=\"(length-[0-9]+.html)\"");
  EXPECT_EQ(lengths.size(), 63u);
}

// Every element is closed, in order, and no text has an open angle bracket or ampersand.
TEST(Site, IsWellFormed) {
  const std::regex markup(
      "<(/?)([a-zA-Z0-9]+)((?: [a-zA-Z0-9-]+=\"[^\"<]*\")*)(/?)>|<!DOCTYPE html>|"
      "&(?:#[0-9]+|amp|lt|gt|quot);");
  for (const char* name :
       {"index.html", "speed-i386.html", "others.html", "reading.html", "manual.html",
        "finder.html", "length-2.html", "length-39.html", "flow-8.svg"}) {
    const std::string& text = site().at(name);
    std::vector<std::string> open;
    for (std::sregex_iterator at(text.begin(), text.end(), markup), end; at != end; ++at) {
      const std::smatch& tag = *at;
      if (!tag[2].matched || tag[4].length() > 0) continue;
      if (tag[1].length() == 0) {
        open.push_back(tag[2]);
        continue;
      }
      ASSERT_FALSE(open.empty()) << name;
      ASSERT_EQ(open.back(), tag[2]) << name;
      open.pop_back();
    }
    EXPECT_TRUE(open.empty()) << name;
    const std::string rest = std::regex_replace(text, markup, "");
    EXPECT_EQ(rest.find_first_of("<>&"), std::string::npos) << name;
  }
}

TEST(Site, ShowsWhatWasMeasured) {
  const std::string& text = site().at("length-12.html");
  const std::string row =
      std::regex_replace(*matches(text, "<td><code>(" + kMeasured + ".*–.*)</td></tr>").begin(),
                         std::regex("(?:<[^>]*>)+"), " ");
  const std::string none = " n.&#160;m.";
  EXPECT_EQ(row, kMeasured + none + " 98.8" + none + " 200.0 – 2.03" + none + " –");
  EXPECT_NE(text.find(kMeasured + "</code></td><td class=\"n\">96</td><td class=\"n\">16</td>"
                                  "<td class=\"n\">1.23</td>"),
            std::string::npos);
  EXPECT_NE(site().at("reading.html").find("A &amp; B"), std::string::npos);
}

// Everything that a tree or an order is written with is explained.
TEST(Site, ExplainsItsNotation) {
  const std::string& reading = site().at(kReadingPageName);
  const std::string word = "[A-Za-z]+(?=\\()|[a-z]+(?= [0-9])|(?:[0-9])[a-z]";
  std::set<std::string> words;
  for (const auto& [length, entries] : catalogue().by_length) {
    for (const auto& [key, entry] : entries) {
      if (key.first == Transform::kHartley) continue;  // says in words what it is
      words.merge(matches(entry.kernel.recipe + " " + entry.written[0].order, word, 0));
    }
  }
  for (const std::string& word : words) {
    const bool is_leaf = std::isdigit(static_cast<unsigned char>(word[0]));
    const std::regex explained(is_leaf ? "\\b[0-9]*" + word.substr(1) + "</dt>|[ ,]" +
                                             word.substr(1) + "( is |,| and | are )"
                                       : "<dt>[^<]*\\b" + word);
    EXPECT_TRUE(std::regex_search(reading, explained)) << word;
  }
}

TEST(Finder, HasEveryExportedFunction) {
  const std::set<std::string> rows =
      matches(site().at(kFinderPageName), "<tr data-[^>]*><td><code>(.*</a>\\(.*\\))</code></td>");
  std::set<std::string> found;
  for (const std::string& row : rows) {
    const std::string prototype = std::regex_replace(row, std::regex("<[^>]*>"), "");
    found.insert(*matches(prototype, "^(?:zulgResult|const zulgLibVersion\\*) (\\w+)\\(").begin());
  }
  const std::vector<std::string> exported = generate::exported_functions();
  EXPECT_EQ(found, std::set(exported.begin(), exported.end()));
}

TEST(Prototypes, AreThoseOfTheHeaders) {
  const auto found = prototypes_in(
      "/* f(x); */\n#define DECLARE(name, sample) \\\n  int name(const sample* src)\n"
      "DECLARE(zulg_a, float);\nDECLARE(zulg_b, double);\nconst char* zulg_c(int,\n  int);\n");
  const std::map<std::string, std::string> wanted = {{"zulg_a", "int zulg_a(const float* src)"},
                                                     {"zulg_b", "int zulg_b(const double* src)"},
                                                     {"zulg_c", "const char* zulg_c(int, int)"}};
  EXPECT_EQ(found, wanted);
}

TEST(Markdown, BecomesMarkup) {
  EXPECT_EQ(markdown_body("## In place, `x`\na [b](#c)\nd **e** [f](../g)\n- h\n  i\n- j < k\n"),
            "<h2 id=\"in-place-x\">In place, <code>x</code></h2>\n"
            "<p>a <a href=\"#c\">b</a> d <strong>e</strong> f</p>\n"
            "<ul>\n<li>h i</li>\n<li>j &lt; k</li>\n</ul>\n");
  const std::string rest = markdown_body("```c\na < b\n```\n| A | B |\n|---|---|\n| c | `d` |\n");
  EXPECT_NE(rest.find("<code>a &lt; b\n</code></pre>"), std::string::npos);
  EXPECT_NE(rest.find("<tr><td>c</td><td><code>d</code></td></tr>"), std::string::npos);
}

}  // namespace
