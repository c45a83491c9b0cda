#include "platform/activation_token.h"

#include <cstdlib>

#include "platform/environment.h"

namespace orbisol {
namespace {

constexpr char kVariable[] = "XDG_ACTIVATION_TOKEN";

}  // namespace

std::string ActivationToken() { return Variable(kVariable); }

CScopedActivationToken::CScopedActivationToken(const std::string& token) {
  if (!token.empty()) setenv(kVariable, token.c_str(), 1);
}

CScopedActivationToken::~CScopedActivationToken() { unsetenv(kVariable); }

}  // namespace orbisol
