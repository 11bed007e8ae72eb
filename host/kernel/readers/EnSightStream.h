#pragma once

#include <memory>
#include <string>

namespace vantrix::kernel::readers {

/*
 * Steps over a geometry or variable file of EnSight, text or binary (C or Fortran records), without keeping what it
 * holds. Every function but isAtEnd() throws DataError, "it ends ...", where the file is too short for it.
 */
class EnSightStream
{
public:
    static std::unique_ptr<EnSightStream> open(const std::string& file);
    virtual ~EnSightStream() = default;

    virtual bool isText() const = 0;
    virtual bool isAtEnd() = 0;

    /* A line of text, which may be empty: a description. */
    virtual std::string description() = 0;

    /* The next line that is neither empty nor a comment: a keyword with what stands behind it. */
    virtual std::string heading() = 0;

    /* A whole number that stands alone. */
    virtual long count() = 0;

    /* Three of them in one line or record. */
    virtual void counts(long (&values)[3]) = 0;

    /* Passes over numbers, `perLine` of them in a line of text, one record of them in a binary file. */
    virtual void passIntegers(long count, long perLine = 1) = 0;
    virtual void passReals(long count, long perLine = 1) = 0;

    /* The same for integers that stand each in a line, with their sum. */
    virtual long sumOfIntegers(long count) = 0;
};

} // namespace vantrix::kernel::readers
