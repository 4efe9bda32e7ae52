/// @file
/// The text of a deck: finding, changing, comparing and checking it in place.
#pragma once

#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
