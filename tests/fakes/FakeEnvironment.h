#pragma once

#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "support/Environment.h"

namespace vantle::fakes {

/// Environment variables that a test sets. The Environment that it converts to sees later changes
/// too, and may outlive it.
class FakeEnvironment {
public:
    using Variables = std::map<std::string, std::string>;

    FakeEnvironment() = default;
    FakeEnvironment(std::initializer_list<Variables::value_type> variables)
        : variables_(std::make_shared<Variables>(variables)) {}

    std::string& operator[](const std::string& name) { return (*variables_)[name]; }

    operator Environment() const {  // NOLINT: meant to convert
        return [variables = variables_](const std::string& name) -> std::optional<std::string> {
            const auto found = variables->find(name);
            return found == variables->end() ? std::nullopt : std::optional(found->second);
        };
    }

private:
    std::shared_ptr<Variables> variables_ = std::make_shared<Variables>();
};

}  // namespace vantle::fakes
