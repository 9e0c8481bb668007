// The parts of the player page that no film changes.
#pragma once

namespace pixmosa {

// The controls, which the script shows.
extern const char* const kMandos;
extern const char* const kReglasDeMandos;

// Closes the list of frames, each [milliseconds, content of the <pre>, data picture of its colours or ""].
extern const char* const kGuion;

}  // namespace pixmosa
