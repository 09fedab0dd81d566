// Prints every alias and address of a RAS message with its path: own_visitor HEX
//
// Shows a visitor. It visits each member that is present in any record, so this code needs no knowledge of the
// messages.
#include <kelvra/kelvra.h>
#include <kelvra/text.h>

#include <cstdio>
#include <string>
#include <type_traits>

#include "octets.h"

namespace {

class AddressPrinter : public kelvra::EmptyVisitor {
 public:
  template <class R>
  void Record(const char* name, R& record) {
    const size_t length = path_.size();
    if (name != nullptr) path_ += (length == 0 ? "" : ".") + std::string(name);
    if constexpr (std::is_same_v<R, kelvra::h225::AliasAddress> || std::is_same_v<R, kelvra::h225::TransportAddress>) {
      std::printf("%s: %s\n", path_.c_str(), kelvra::TextOf(record).c_str());
    } else {
      R::Walk(record, *this);
    }
    path_.resize(length);
  }
  template <class R>
  void Pointer(const char* name, kelvra::Slot<R> slot) {
    if (R* record = slot.Get()) Record(name, *record);
  }
  template <class L, class Show>
  void List(const char* name, L list, Show show) {
    const size_t length = path_.size();
    size_t index = 0;
    for (auto& element : list) {
      path_ += "." + std::string(name == nullptr ? "" : name) + "[" + std::to_string(index++) + "]";
      show(element);
      path_.resize(length);
    }
  }

 private:
  std::string path_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::vector<uint8_t> octets = OctetsOf(argv[1]);
  octets.push_back(0);  // the spare octet that RAS needs
  kelvra::h225::RasMessageRecord message;
  const bool decoded = KelvraDecodeRASMessage(&message, octets.data(), static_cast<uint32_t>(octets.size())) != 0;
  if (decoded) AddressPrinter().Record(nullptr, message);
  KelvraFreeRASMessage(&message);
  return decoded ? 0 : 1;
}
