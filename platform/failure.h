#pragma once

#include <exception>
#include <string>

namespace tarvelin
{

/// What can fail, by the numbers that users of such programs have always been shown.
enum class Fault : int
{
  invalidCall = 5,
  overflow = 6,
  outOfMemory = 7,
  subscript = 9,
  typeMismatch = 13,
  badFileName = 52,
  fileNotFound = 53,
  fileOpen = 55,
  deviceError = 57,
  fileExists = 58,
  diskFull = 61,
  pastEnd = 62,
  tooManyFiles = 67,
  deviceUnavailable = 68,
  permissionDenied = 70,
  diskNotReady = 71,
  pathAccess = 75,
  pathNotFound = 76,
  notSet = 91,
  invalidFormat = 321,
  invalidValue = 380,
  invalidPicture = 481,
  cancelled = 32755,
  elementNotFound = 35601,
  keyNotUnique = 35602,
};

/// The one exception of the program: a statement that failed. Most procedures skip or log it and run the next one
/// (core/attempt.h); one that leaves a handler ends the program.
struct Failure : std::exception
{
  int number;
  std::string description;

  explicit Failure(Fault fault);
  const char* what() const noexcept override { return description.c_str(); }
};

} // namespace tarvelin
