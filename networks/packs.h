// Work on many samples of a form at once, pack by pack as they lie.
#pragma once

#include <algorithm>
#include <map>
#include <vector>

#include "gen/number.h"

namespace networks {

// The indices of samples that lie in one pack, in the order of their places there.
template <class Form>
std::vector<std::vector<int>> packed_together(Form& form,
                                              const std::vector<typename Form::Sample>& samples) {
  std::map<int, std::map<int, int>> packs;
  for (int k = 0; k < static_cast<int>(samples.size()); ++k) {
    packs[form.pack_of(samples[k])][form.place_in_pack(samples[k])] = k;
  }
  std::vector<std::vector<int>> result;
  for (const auto& [pack, places] : packs) {
    std::vector<int>& together = result.emplace_back();
    for (const auto& [place, k] : places) together.push_back(k);
  }
  std::sort(result.begin(), result.end());
  return result;
}

// Sample k times constant k, in full, the samples of a group together.
template <class Form>
std::vector<typename Form::Sample> multiply_groups(Form& form,
                                                   std::vector<typename Form::Sample> samples,
                                                   const std::vector<gen::ComplexNumber>& constants,
                                                   const std::vector<std::vector<int>>& groups) {
  for (const std::vector<int>& together : groups) {
    std::vector<typename Form::Sample> packed;
    std::vector<gen::ComplexNumber> factors;
    for (int k : together) {
      packed.push_back(samples[k]);
      factors.push_back(constants[k]);
    }
    const auto product = form.multiply(form.pack(packed), factors);
    for (std::size_t i = 0; i < together.size(); ++i) {
      samples[together[i]] = form.unpack(product, static_cast<int>(i));
    }
  }
  return samples;
}

template <class Form>
std::vector<typename Form::Sample> multiply_all(Form& form,
                                                const std::vector<typename Form::Sample>& samples,
                                                const std::vector<gen::ComplexNumber>& constants) {
  return multiply_groups(form, samples, constants, packed_together(form, samples));
}

// The samples with `addend` added to the first; to what shares its pack, zero is added.
template <class Form>
std::vector<typename Form::Sample> add_to_first(Form& form,
                                                std::vector<typename Form::Sample> samples,
                                                const typename Form::Sample& addend) {
  for (const std::vector<int>& together : packed_together(form, samples)) {
    if (together.front() != 0) continue;
    std::vector<typename Form::Sample> packed, addends(together.size(), form.zero());
    for (int k : together) packed.push_back(samples[k]);
    addends.front() = addend;
    const auto sum = form.pack(packed) + form.pack(addends);
    for (std::size_t i = 0; i < together.size(); ++i) {
      samples[together[i]] = form.unpack(sum, static_cast<int>(i));
    }
  }
  return samples;
}

}  // namespace networks
