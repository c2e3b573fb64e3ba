// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>

namespace nautrel {

/// The numbers of the run-time's failures, which the message box shows: a diver asks for help by
/// them.
enum ErrorNumber {
  InvalidCall = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  InternalError = 51,
  FileNotFound = 53,
  FileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  InvalidUseOfNull = 94,
  ObjectUnloaded = 364,
  InvalidPropertyValue = 380,
  TextIsReadOnly = 383,
  InvalidPicture = 481,
  NoEditPending = 3020,
  NoCurrentRecord = 3021,
  DatabaseNotFound = 3024,
  DiskFull = 3026,
  DatabaseReadOnly = 3027,
  PathNotValid = 3044,
  CannotOpenFile = 3051,
  TableNotFound = 3078,
  RecordDeleted = 3167,
  CouldNotLock = 3260,
  ItemNotFound = 3265,
  UnrecognizedFormat = 3343,
  DialogCancelled = 32755,
};

/// A failing statement. It flies until a rule of a procedure stops it, or to the edge of the
/// event loop, which shows its message and ends the program.
struct RunTimeError {
  int number = 0;
  std::string text;
};

/// The program is ending after a failure. No rule of a procedure stops it: it is deliberately no
/// RunTimeError, so that a handler under a message box does not write on.
struct ProgramEnd {};

/// Raises the failure with its standing text; `name` fills the place of the file, path or table.
[[noreturn]] void raise(ErrorNumber number, const std::string& name = {});

/// Raises the failure with its standing text and, behind it, what is known of the case.
[[noreturn]] void raiseBecause(ErrorNumber number, const std::string& reason);

/// What the exception in flight is to the user: out of memory 7, and 51 if it is no failure of the
/// run-time at all. Nothing for ProgramEnd. To be called while one is being caught.
std::optional<RunTimeError> failureInFlight();

/// Runs one statement whose failure is passed over.
template <class Statement>
void resumeNext(Statement&& statement) {
  try {
    statement();
  } catch (const RunTimeError&) {
  }
}

/// A test under the resume-next rule: one that fails enters its block.
template <class Condition>
[[nodiscard]] bool trueOrFails(Condition&& condition) {
  try {
    return static_cast<bool>(condition());
  } catch (const RunTimeError&) {
    return true;
  }
}

}  // namespace nautrel
