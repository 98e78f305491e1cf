// Pairings as text: "12+40 14-3*5" pairs node 12 with 52, and 14 to 18 with 11 to 15.
#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "gen/pack.h"

namespace gen {

std::string to_string(Pairing pairing) {
  std::sort(pairing.begin(), pairing.end());
  std::string text;
  for (std::size_t i = 0, count; i < pairing.size(); i += count) {
    const int distance = pairing[i].high - pairing[i].low;
    for (count = 1; i + count < pairing.size(); ++count) {
      const int low = pairing[i].low + static_cast<int>(count);
      if (pairing[i + count] != Pair{low, low + distance}) break;
    }
    text += (text.empty() ? "" : " ") + std::to_string(pairing[i].low);
    text += (distance < 0 ? "" : "+") + std::to_string(distance);
    if (count > 1) text += "*" + std::to_string(count);
  }
  return text;
}

Pairing parse_pairing(std::string_view text) {
  Pairing pairing;
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto number = [&] {
    int result = 0;
    const auto [next, error] = std::from_chars(at, end, result);
    if (error != std::errc()) throw std::invalid_argument("not a pairing: " + std::string(text));
    at = next;
    return result;
  };
  const auto skip = [&](char c) {
    const bool found = at != end && *at == c;
    at += found;
    return found;
  };
  while (at != end) {
    const int low = number();
    skip('+');
    const int distance = number();
    const int count = skip('*') ? number() : 1;
    for (int i = low; i < low + count; ++i) pairing.push_back({i, i + distance});
    if (at != end && !skip(' ')) number();
  }
  return pairing;
}

}  // namespace gen
