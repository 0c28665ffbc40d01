// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/json_document.h"

#include <cmath>
#include <string>
#include <string_view>

#include "base/json_text.h"
#include "base/numbers.h"

namespace campora {

namespace {

class JsonPrinter {
public:
    explicit JsonPrinter(std::ostream& out) : out_(out) {}

    void print(const Json& value) {
        if (value.is_structured()) {
            printMembers(value);
        } else if (value.is_string()) {
            out_ << jsonText(value.get_ref<const std::string&>());
        } else if (value.is_number_float()) {
            out_ << numberText(value.get<double>());
        } else {
            out_ << value;
        }
    }

private:
    void printMembers(const Json& parent) {
        const bool named = parent.is_object();
        const std::string outside = indent_;
        indent_ += "  ";
        out_ << (named ? '{' : '[');
        std::string_view between = "\n";
        for (auto member = parent.begin(); member != parent.end(); ++member) {
            out_ << between << indent_;
            if (named) {
                out_ << jsonText(member.key()) << ": ";
            }
            print(*member);
            between = ",\n";
        }
        indent_ = outside;
        if (!parent.empty()) {
            out_ << '\n' << indent_;
        }
        out_ << (named ? '}' : ']');
    }

    std::ostream& out_;
    std::string indent_;
};

}  // namespace

double asDecimal(float number) {
    return leadingNumber(numberText(number)).value_or(0);
}

Json figureJson(std::optional<double> value) {
    constexpr double kPlaces = 1e6;
    return value ? Json(std::round(*value * kPlaces) / kPlaces) : Json();
}

void printJson(const Json& document, std::ostream& out) {
    JsonPrinter(out).print(document);
    out << '\n';
}

}  // namespace campora
