/// @file
/// The tokens that short texts are made of.
#pragma once

#include <string>
#include <vector>

namespace nurl::test {

/// What has a meaning in the text of a deck, one token of each kind.
inline const std::vector<std::string> deck_tokens{" ", "\n", "\t", "$", "$END", "=",
                                                  "(", ")",  "!",  ",", "a",    "1"};

/// Keywords of `$CONTRL` of each type, with values that convert and others.
inline const std::vector<std::string> control_tokens{" ",       "\n",   "=", " ICHARG=", " UNITS=",
                                                     " nosym=", " PP=", "T", "bohr",     "-1",
                                                     "0",       "$",    "!", "$end"};

/// Words of the lines of `$DATA`.
inline const std::vector<std::string> molecule_tokens{"\n", "\r\n",     " ",      "O",   " 8.",
                                                      " 1", " -1.5D-3", " 1e999", "\t$", "$end"};

/// Lines of a schema file at each indentation, with comments, quotes, tabs and line ends.
inline const std::vector<std::string> schema_lines{"sections:\r\n",
                                                   "other: 1\n",
                                                   "  $A:\n",
                                                   "  scf: # known\n",
                                                   "\tb:\n",
                                                   "    entries:\n",
                                                   "    parse_mode: 'Raw'\r\n",
                                                   "    allow_raw_lines: \"no\" # '\n",
                                                   "    alias_of: $B\n",
                                                   "      K(1):\n",
                                                   "      word\n",
                                                   "        kind: Flag\n",
                                                   "        value_type: 'a#b'\n",
                                                   "        indexed: yes\t\n"};

}  // namespace nurl::test
