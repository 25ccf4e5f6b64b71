// What stands behind a standard stream.
#pragma once

#include <cstdio>

namespace zpsg::platform {

/// Where a program with windows gets no terminal by itself, takes that of the program which started it, for
/// those standard streams that lead nowhere else. To be called first of all.
void attachToTerminal();

/// Whether a person is looking at the stream.
bool isTerminal(std::FILE *stream);

/// Makes the stream fit for data: bytes go out as they are, and writing into a pipe that nobody reads any
/// more is an error, for the whole process and from now on, and not its end. False when the stream is not
/// open for writing, also when something else was opened in a closed one's place.
bool prepareForData(std::FILE *stream);

} // namespace zpsg::platform
