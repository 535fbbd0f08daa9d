#pragma once

#include "core/base/RunTimeError.h"

/// A file could not be written; the description says why, in the words of whoever chose its place.
/// `error` is an errno, 0 where the reason is not known.
class WriteFailure : public RunTimeError {
public:
    explicit WriteFailure(int error);
};
