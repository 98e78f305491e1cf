#include "docs/pages/tree_picture.h"

#include <algorithm>
#include <map>

#include "docs/pages/markup.h"

namespace pages {
namespace {

constexpr double kRow = 27, kBox = 21, kLengthSize = 13, kNoteSize = 12, kPadding = 8, kGap = 34;

struct Placed {
  const Branch* branch;
  int depth;
  double y;
  int parent;  // index of the one that it is a part of; -1 for the root
};

class TreeDrawer {
 public:
  explicit TreeDrawer(const Branch& root) { place(root, 0, -1); }

  Picture draw() const {
    std::map<int, double> left, width;
    for (const Placed& placed : placed_) {
      width[placed.depth] = std::max(width[placed.depth], width_of(*placed.branch));
    }
    double right = 1;
    for (const auto& [depth, column] : width) {
      left[depth] = right;
      right += column + kGap;
    }
    std::string lines, boxes;
    for (const Placed& placed : placed_) {
      const double x = left[placed.depth];
      if (placed.parent >= 0) {
        const Placed& parent = placed_[placed.parent];
        lines += line(left[parent.depth] + width_of(*parent.branch), parent.y, x, placed.y);
      }
      boxes += box(*placed.branch, x, placed.y);
    }
    const Size size = {right - kGap + 1, rows_ * kRow};
    return {"<svg class=\"tree\" role=\"img\" width=\"" + coordinate(size.width) + "\" height=\"" +
                coordinate(size.height) + "\"><path d=\"" + lines + "\"/>" + boxes + "</svg>\n",
            size};
  }

 private:
  // The place of the branch's middle; parts stand in rows of their own, in their order.
  double place(const Branch& branch, int depth, int parent) {
    const int index = static_cast<int>(placed_.size());
    placed_.push_back({&branch, depth, 0, parent});
    double y = 0;
    if (branch.parts.empty()) {
      y = (rows_++ + 0.5) * kRow;
    } else {
      const double first = place(branch.parts.front(), depth + 1, index);
      double last = first;
      for (std::size_t i = 1; i < branch.parts.size(); ++i) {
        last = place(branch.parts[i], depth + 1, index);
      }
      y = (first + last) / 2;
    }
    placed_[index].y = y;
    return y;
  }

  static double length_width(const Branch& branch) {
    return text_width(std::to_string(branch.length), kLengthSize + 1);
  }

  static double width_of(const Branch& branch) {
    const double note = branch.note.empty() ? 0 : 6 + text_width(branch.note, kNoteSize);
    return 2 * kPadding + length_width(branch) + note;
  }

  static std::string line(double x0, double y0, double x1, double y1) {
    const std::string middle = coordinate((x0 + x1) / 2) + " ";
    return "M" + coordinate(x0) + " " + coordinate(y0) + "C" + middle + coordinate(y0) + " " +
           middle + coordinate(y1) + " " + coordinate(x1) + " " + coordinate(y1);
  }

  static std::string box(const Branch& branch, double x, double y) {
    const std::string baseline = "\" y=\"" + coordinate(y + 4.5) + "\"";
    std::string text = std::string("<rect") + (branch.parts.empty() ? " class=\"leaf\"" : "") +
                       " x=\"" + coordinate(x) + "\" y=\"" + coordinate(y - kBox / 2) +
                       "\" width=\"" + coordinate(width_of(branch)) + "\" height=\"" +
                       coordinate(kBox) + "\" rx=\"4\"/><text x=\"" + coordinate(x + kPadding) +
                       baseline + ">" + std::to_string(branch.length) + "</text>";
    if (!branch.note.empty()) {
      text += "<text class=\"note\" x=\"" + coordinate(x + kPadding + length_width(branch) + 6) +
              baseline + ">" + escaped(branch.note) + "</text>";
    }
    return text;
  }

  std::vector<Placed> placed_;
  int rows_ = 0;
};

}  // namespace

Picture tree_picture(const Branch& root) { return TreeDrawer(root).draw(); }

}  // namespace pages
