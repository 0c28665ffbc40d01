// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/text_id.h"

namespace campora {

/// Why something could not be done, as the id of a text and what stands in its places (%1, %2...).
/// It becomes a sentence only where a person reads it.
struct Failure {
    TextId text{};
    std::vector<std::string> arguments;
    /// At most one: why it came to this. Its sentence fills the place after the arguments.
    std::vector<Failure> cause = {};
};

/// `text` with its arguments and, in the place after them, the sentence of `cause`.
[[nodiscard]] inline Failure because(TextId text, std::vector<std::string> arguments,
                                     Failure cause) {
    Failure failure{text, std::move(arguments), {}};
    failure.cause.push_back(std::move(cause));
    return failure;
}

/// Something to be said about a file that was opened all the same: an id and what stands in its
/// places, as in a failure.
using Remark = Failure;

/// A file that breaks its format. Thrown by decoders, caught once by the function that opens the
/// file.
class FormatError : public std::runtime_error {
public:
    explicit FormatError(Failure failure)
        : std::runtime_error("malformed file"), failure_(std::move(failure)) {}

    [[nodiscard]] const Failure& failure() const { return failure_; }

private:
    Failure failure_;
};

/// A value, or why there is none.
template <typename T>
class Result {
public:
    Result(T value) : state_(std::move(value)) {}            // NOLINT(google-explicit-constructor)
    Result(Failure failure) : state_(std::move(failure)) {}  // NOLINT(google-explicit-constructor)

    [[nodiscard]] explicit operator bool() const { return std::holds_alternative<T>(state_); }
    [[nodiscard]] T& operator*() { return std::get<T>(state_); }
    [[nodiscard]] const T& operator*() const { return std::get<T>(state_); }
    [[nodiscard]] T* operator->() { return &std::get<T>(state_); }
    [[nodiscard]] const T* operator->() const { return &std::get<T>(state_); }
    [[nodiscard]] const Failure& failure() const { return std::get<Failure>(state_); }

private:
    std::variant<T, Failure> state_;
};

}  // namespace campora
