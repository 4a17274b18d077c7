// Runtime faults. The program's logic throws none of its own; these come from the
// runtime when an array is indexed out of its bounds or a missing object is used.
// Nothing in the logic catches them: the event dispatch does, reports the fault and
// lets the program run on.
#pragma once

#include <stdexcept>
#include <string>

namespace tessarine {

class RuntimeException : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  // The class name shown to the user, as in "An exception of class X was not handled."
  virtual const char* ClassName() const = 0;
};

class OutOfBoundsException : public RuntimeException {
 public:
  using RuntimeException::RuntimeException;
  const char* ClassName() const override { return "OutOfBoundsException"; }
};

class NilObjectException : public RuntimeException {
 public:
  using RuntimeException::RuntimeException;
  const char* ClassName() const override { return "NilObjectException"; }
};

// The message a user sees for a fault that no handler caught.
inline std::string UnhandledExceptionMessage(const std::string& class_name) {
  return "An exception of class " + class_name + " was not handled.";
}

}  // namespace tessarine
