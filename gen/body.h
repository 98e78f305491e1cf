// Arithmetic that code written by hand calls: an inline function of accessors, which bring vectors
// and take them away.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "gen/form.h"
#include "gen/graph.h"

namespace gen {

struct Body {
  // The specialisation of a class template whose function `run` this is.
  std::string name;
  std::string declared_in;  // the header that declares the template
  std::string header;       // the one that the body goes to
  std::string recipe;       // what it computes, in a few words
  // The names of accessors: the source, tables. With none, the function takes two arrays, of which
  // it reads and writes single elements; they may be the same array.
  std::vector<std::string> accessors;
  // How many elements the first accessor reaches if it is an array. It is read by halves of vectors
  // or, then aligned on 16 bytes, by vectors.
  int source_elements = 0;
  bool loads_halves = false;
  std::function<Graph()> graph;
  // Two of the graph side by side; the second's source stands behind the first's.
  bool is_doubled = false;
};

// "FirstStage<F4, 8>": a class template for vectors of so many lanes and a size.
std::string specialisation(const std::string& class_template, Precision precision, int lane_count,
                           int size);

// The specialisation as C++.
std::string emit_body(const Body& body, const Form& form);

// The headers that hold the bodies, by name.
using FormOfBody = std::function<Form(const Body&)>;
std::map<std::string, std::string> headers_of_bodies(const std::vector<Body>& bodies,
                                                     const FormOfBody& form_of);

}  // namespace gen
