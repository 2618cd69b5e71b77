// The host's CIM interfaces. Slot order is the binary contract with the host:
// the destructor is slot 0, and slots that this plug-in does not call are
// reserved so that the named ones keep their places.
#pragma once

#include "plugin/host/TCIMValue.h"

#include <boost/shared_ptr.hpp>
#include <string>

namespace NVELKZEV20 {

class ICIMInstance {
 public:
  virtual ~ICIMInstance();  // slot 0
  virtual void ReservedSlot1();
  // Publishes the finished instance to its namespace.
  virtual void Commit(TNameToValueMap options) = 0;  // slot 2
  virtual void ReservedSlot3();
  virtual void ReservedSlot4();
  virtual void ReservedSlot5();
  virtual void ReservedSlot6();
  virtual void ReservedSlot7();
  virtual void ReservedSlot8();
  virtual void ReservedSlot9();
  virtual void ReservedSlot10();
  // Sets one property; the value is copied.
  virtual void SetProperty(const std::string& name, const TCIMValue& value,
                           TNameToValueMap qualifiers) = 0;  // slot 11
};

class ICIMClass {
 public:
  virtual ~ICIMClass();  // slot 0
  virtual void ReservedSlot1();
  virtual void ReservedSlot2();
  virtual void ReservedSlot3();
  virtual void ReservedSlot4();
  [[nodiscard]] virtual std::string GetName() const = 0;  // slot 5
  virtual void ReservedSlot6();
  virtual void ReservedSlot7();
  virtual void ReservedSlot8();
  virtual void ReservedSlot9();
  virtual void ReservedSlot10();
  virtual void ReservedSlot11();
  virtual void ReservedSlot12();
  virtual void ReservedSlot13();
  virtual void ReservedSlot14();
  virtual void ReservedSlot15();
  virtual void ReservedSlot16();
  virtual void ReservedSlot17();
  virtual void ReservedSlot18();
  virtual void ReservedSlot19();
  virtual void ReservedSlot20();
  virtual void ReservedSlot21();
  // Gives a fresh, uncommitted instance of the class.
  virtual void CreateInstance(boost::shared_ptr<ICIMInstance>& instance,
                              const TNameToValueMap& options) = 0;  // slot 22
};

class ICIMNamespace {
 public:
  virtual ~ICIMNamespace();  // slot 0
  virtual void ReservedSlot1();
  virtual void ReservedSlot2();
  virtual void ReservedSlot3();
  virtual void ReservedSlot4();
  // Looks a class up; the handle stays empty when there is none of that name.
  virtual void GetClass(boost::shared_ptr<ICIMClass>& cimClass, const std::string& name,
                        ContextMap context) = 0;  // slot 5
};

}  // namespace NVELKZEV20
