// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/errors.h"

#include <array>
#include <exception>
#include <new>
#include <utility>

namespace nautrel {
namespace {

constexpr std::array<std::pair<int, const char*>, 29> kTexts{{
    {InvalidCall, "Invalid procedure call or argument"},
    {Overflow, "Overflow"},
    {OutOfMemory, "Out of memory"},
    {SubscriptOutOfRange, "Subscript out of range"},
    {DivisionByZero, "Division by zero"},
    {TypeMismatch, "Type mismatch"},
    {InternalError, "Internal error"},
    {FileNotFound, "File not found"},
    {FileAccess, "Path/File access error"},
    {PathNotFound, "Path not found"},
    {ObjectNotSet, "Object variable or With block variable not set"},
    {InvalidUseOfNull, "Invalid use of Null"},
    {ObjectUnloaded, "Object was unloaded"},
    {InvalidPropertyValue, "Invalid property value"},
    {TextIsReadOnly, "'Text' property is read-only"},
    {InvalidPicture, "Invalid picture"},
    {NoEditPending, "Update or CancelUpdate without AddNew or Edit."},
    {NoCurrentRecord, "No current record."},
    {DatabaseNotFound, "Couldn't find file 'X'."},
    {DiskFull, "Not enough space on disk."},
    {DatabaseReadOnly, "Can't update. Database or object is read-only."},
    {PathNotValid, "'X' isn't a valid path."},
    {CannotOpenFile,
     "The database engine cannot open the file 'X'. It is already opened exclusively by another "
     "user, or you need permission to view its data."},
    {TableNotFound, "The database engine cannot find the input table or query 'X'."},
    {RecordDeleted, "Record is deleted."},
    {CouldNotLock, "Couldn't update; currently locked."},
    {ItemNotFound, "Item not found in this collection."},
    {UnrecognizedFormat, "Unrecognized database format 'X'."},
    {DialogCancelled, "Cancel was selected."},
}};

RunTimeError failure(ErrorNumber number, const std::string& name = {}) {
  std::string text;
  for (const auto& [known, standing] : kTexts)
    if (known == number) text = standing;
  if (const auto place = text.find("'X'"); place != std::string::npos)
    text.replace(place + 1, 1, name);
  return {number, text};
}

RunTimeError failureBecause(ErrorNumber number, const std::string& reason) {
  auto known = failure(number);
  if (known.text.ends_with('.')) known.text.pop_back();
  known.text += ": " + reason;
  return known;
}

}  // namespace

void raise(ErrorNumber number, const std::string& name) {
  throw failure(number, name);
}

void raiseBecause(ErrorNumber number, const std::string& reason) {
  throw failureBecause(number, reason);
}

std::optional<RunTimeError> failureInFlight() {
  try {
    throw;
  } catch (const RunTimeError& raised) {
    return raised;
  } catch (const ProgramEnd&) {
    return {};
  } catch (const std::bad_alloc&) {
    return failure(OutOfMemory);
  } catch (const std::exception& fault) {
    return failureBecause(InternalError, fault.what());
  } catch (...) {
    return failure(InternalError);
  }
}

}  // namespace nautrel
