// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <cstddef>
#include <cstdint>

/// What a fuzz target defines: a function in the form that libFuzzer calls, which aborts where the
/// tested code breaks a promise, and well-formed inputs to start from.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

QList<QByteArray> fuzzSeeds();
