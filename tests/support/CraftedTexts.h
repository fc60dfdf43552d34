// Texts crafted to collide in a hash table.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

// `count` different texts of 16 bytes with the same std::hash value, which does not vary between
// processes: in a table with that hash they share a bucket. Only texts without NUL for which
// `wanted` returns true.
std::vector<std::string> CraftedTexts(std::size_t count,
                                      const std::function<bool(const std::string&)>& wanted);
