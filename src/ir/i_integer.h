// i_integer: a signed integer of unlimited size.
//
// The value lives behind a pointer so that this header stays light: only
// i_integer.cpp sees the big-number implementation, which keeps the compile
// time of every other file low.
#pragma once

#include <string>

class i_integer {
public:
    // Construction: zero, a machine integer, or a text in a base (2 to 36,
    // an optional leading '-' or '+'; an invalid text gives 0 and
    // is_valid() false).
    i_integer();
    i_integer(long long value);
    i_integer(int value) : i_integer((long long)value) {}
    i_integer(long value) : i_integer((long long)value) {}
    i_integer(unsigned value) : i_integer((long long)value) {}
    i_integer(const char *text, int base = 10);
    i_integer(const i_integer &other);
    i_integer(i_integer &&other) noexcept;
    i_integer &operator=(const i_integer &other);
    i_integer &operator=(i_integer &&other) noexcept;
    ~i_integer();

    // Setting from machine integers.
    void set_integer(long long value);
    void set_c_unsigned_long(unsigned long value);
    void set_c_unsigned_long_long(unsigned long long value);

    // Reading back. c_int/c_long truncate to the machine width (two's
    // complement); the is_c_* tests say whether the value fits.
    int c_int() const;
    long c_long() const;
    long long c_long_long() const;
    unsigned long c_unsigned_long() const;
    bool is_c_int() const;
    bool is_c_long() const;
    bool is_c_unsigned_long() const;
    bool is_valid() const { return valid; }

    // Text in a base (2 to 36, lower-case digits, '-' for negatives).
    // write() fills a caller's buffer that must hold written_length() + 1
    // bytes; to_string() returns a std::string.
    std::string to_string(int base = 10) const;
    void write(char *buffer, int base = 10) const;
    int written_length(int base = 10) const;

    // Arithmetic.
    i_integer add(const i_integer &other) const;
    i_integer subtract(const i_integer &other) const;
    i_integer multiply(const i_integer &other) const;
    i_integer div(const i_integer &other) const;  // truncates; by 0 gives 0
    i_integer mod(const i_integer &other) const;  // sign of the dividend; by 0 gives 0
    i_integer negate() const;
    i_integer abs() const;
    i_integer operator-() const { return negate(); }
    i_integer operator+(const i_integer &o) const { return add(o); }
    i_integer operator-(const i_integer &o) const { return subtract(o); }
    i_integer operator*(const i_integer &o) const { return multiply(o); }
    i_integer operator/(const i_integer &o) const { return div(o); }
    i_integer operator%(const i_integer &o) const { return mod(o); }
    // Shifts are arithmetic: >> of a negative value rounds toward minus
    // infinity. A negative count shifts the other way.
    i_integer operator<<(int count) const;
    i_integer operator>>(int count) const;
    i_integer &operator+=(const i_integer &o) { return *this = add(o); }
    i_integer &operator-=(const i_integer &o) { return *this = subtract(o); }

    // Comparison.
    bool is_equal_to(const i_integer &other) const;
    bool is_less_than(const i_integer &other) const;
    bool is_negative() const;
    bool is_zero() const;
    int compare(const i_integer &other) const;  // -1, 0, 1
    bool operator==(const i_integer &o) const { return is_equal_to(o); }
    bool operator!=(const i_integer &o) const { return !is_equal_to(o); }
    bool operator<(const i_integer &o) const { return is_less_than(o); }
    bool operator<=(const i_integer &o) const { return !o.is_less_than(*this); }
    bool operator>(const i_integer &o) const { return o.is_less_than(*this); }
    bool operator>=(const i_integer &o) const { return !is_less_than(o); }

    struct rep;

private:
    rep *r;
    bool valid = true;
};
