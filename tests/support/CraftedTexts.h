// Texts that somebody made to slow a hash table down.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

// `count` different texts of 16 bytes that all have one std::hash value, which is the same in every
// process: as keys of a table that goes by it they stand in one bucket. Only texts without NUL that
// `wanted` says true of.
std::vector<std::string> CraftedTexts(std::size_t count,
                                      const std::function<bool(const std::string&)>& wanted);
