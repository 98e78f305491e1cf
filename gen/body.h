// Arithmetic that code written by hand calls: an inline function of accessors, which bring vectors
// and take them away.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "gen/graph.h"
#include "gen/schedule.h"

namespace gen {

struct Body {
  std::string name;
  std::string family;  // the header that it goes to
  std::string recipe;  // what it computes, in a few words
  Precision precision = Precision::kSingle;
  Order order;
  // The names of accessors: the source, tables. With none, the function takes two arrays, of which
  // it reads and writes single elements; they may be the same array.
  std::vector<std::string> accessors;
  // How many elements the first accessor reaches if it is an array, aligned on 16 bytes.
  int source_elements = 0;
  std::function<Graph()> graph;
};

// The function as C++.
std::string emit_body_function(const Body& body);

// The headers FAMILY.h that hold the bodies, by name.
std::map<std::string, std::string> headers_of_bodies(const std::vector<Body>& bodies);

}  // namespace gen
