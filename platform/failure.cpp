#include "platform/failure.h"

namespace tarvelin
{

namespace
{

struct Wording
{
  Fault fault;
  const char* text;
};

constexpr Wording wordings[] = {
    {Fault::invalidCall, "Invalid procedure call or argument"},
    {Fault::overflow, "Overflow"},
    {Fault::outOfMemory, "Out of memory"},
    {Fault::subscript, "Subscript out of range"},
    {Fault::typeMismatch, "Type mismatch"},
    {Fault::badFileName, "Bad file name or number"},
    {Fault::fileNotFound, "File not found"},
    {Fault::fileOpen, "File already open"},
    {Fault::deviceError, "Device I/O error"},
    {Fault::fileExists, "File already exists"},
    {Fault::diskFull, "Disk full"},
    {Fault::pastEnd, "Input past end of file"},
    {Fault::tooManyFiles, "Too many files"},
    {Fault::deviceUnavailable, "Device unavailable"},
    {Fault::permissionDenied, "Permission denied"},
    {Fault::diskNotReady, "Disk not ready"},
    {Fault::pathAccess, "Path/File access error"},
    {Fault::pathNotFound, "Path not found"},
    {Fault::notSet, "Object variable or With block variable not set"},
    {Fault::invalidFormat, "Invalid file format"},
    {Fault::invalidValue, "Invalid property value"},
    {Fault::invalidPicture, "Invalid picture"},
    {Fault::cancelled, "Cancel was selected."},
    {Fault::elementNotFound, "Element not found"},
    {Fault::keyNotUnique, "Key is not unique in collection"},
};

const char* wordingOf(Fault fault)
{
  for (const Wording& wording : wordings)
    if (wording.fault == fault)
      return wording.text;
  return "Application-defined or object-defined error";
}

} // namespace

Failure::Failure(Fault fault) : number(static_cast<int>(fault)), description(wordingOf(fault)) {}

} // namespace tarvelin
