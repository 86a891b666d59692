// FuzzFiles.h -- what the fuzz targets share: a private home folder and writing an input to a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Makes a fresh folder under $TMPDIR (or /tmp), points HOME and the XDG variables at it, and returns it.
std::string FuzzHome();

// Writes the bytes to the file, replacing what it held.
void FuzzWriteFile(const std::string& path, const uint8_t* data, size_t size);

// Reads the whole file; empty when it can't be opened.
std::string FuzzReadFile(const std::string& path);

// Stops the run as a finding when the condition doesn't hold.
void FuzzCheck(bool condition, const char* what);
