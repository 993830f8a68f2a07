#include "complex/complexmessages.h"

#include <string>

namespace velmora::complex {

void Show(platform::MessageBox& box, const Message& message) {
  box.Show(std::string(message.text), std::string(message.title), message.icon);
}

}  // namespace velmora::complex
