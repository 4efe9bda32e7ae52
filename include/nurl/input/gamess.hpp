/// @file
/// The whole library in one include.
#pragma once

#include "nurl/input/gamess/builder.hpp"     // IWYU pragma: export
#include "nurl/input/gamess/editor.hpp"      // IWYU pragma: export
#include "nurl/input/gamess/model.hpp"       // IWYU pragma: export
#include "nurl/input/gamess/reader.hpp"      // IWYU pragma: export
#include "nurl/input/gamess/schema.hpp"      // IWYU pragma: export
#include "nurl/input/gamess/source.hpp"      // IWYU pragma: export
#include "nurl/input/gamess/typed.hpp"       // IWYU pragma: export
#include "nurl/input/gamess/validation.hpp"  // IWYU pragma: export
#include "nurl/input/gamess/writer.hpp"      // IWYU pragma: export
