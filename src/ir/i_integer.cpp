// The big-number implementation behind i_integer: Boost's cpp_int, seen by
// this file only.
#include "ir/i_integer.h"

#include <boost/multiprecision/cpp_int.hpp>
#include <cstring>

using big = boost::multiprecision::cpp_int;

struct i_integer::rep {
    big v;
};

static bool parse_digits(const char *text, int base, big *out) {
    if (!text || base < 2 || base > 36) return false;
    const char *p = text;
    bool neg = false;
    if (*p == '-' || *p == '+') neg = *p++ == '-';
    if (!*p) return false;
    big v = 0;
    for (; *p; ++p) {
        int d;
        char c = *p;
        if (c >= '0' && c <= '9') d = c - '0';
        else if (c >= 'a' && c <= 'z') d = c - 'a' + 10;
        else if (c >= 'A' && c <= 'Z') d = c - 'A' + 10;
        else return false;
        if (d >= base) return false;
        v = v * base + d;
    }
    *out = neg ? big(-v) : v;
    return true;
}

i_integer::i_integer() : r(new rep{0}) {}
i_integer::i_integer(long long value) : r(new rep{big(value)}) {}
i_integer::i_integer(const char *text, int base) : r(new rep{0}) {
    valid = parse_digits(text, base, &r->v);
    if (!valid) r->v = 0;
}
i_integer::i_integer(const i_integer &o) : r(new rep{o.r->v}), valid(o.valid) {}
// A moved-from value stays usable (as zero or as the old target value).
i_integer::i_integer(i_integer &&o) noexcept : r(new rep{0}), valid(o.valid) { std::swap(r, o.r); }
i_integer &i_integer::operator=(const i_integer &o) {
    if (this != &o) {
        r->v = o.r->v;
        valid = o.valid;
    }
    return *this;
}
i_integer &i_integer::operator=(i_integer &&o) noexcept {
    std::swap(r, o.r);
    std::swap(valid, o.valid);
    return *this;
}
i_integer::~i_integer() { delete r; }

void i_integer::set_integer(long long value) { r->v = value; valid = true; }
void i_integer::set_c_unsigned_long(unsigned long value) { r->v = value; valid = true; }
void i_integer::set_c_unsigned_long_long(unsigned long long value) { r->v = value; valid = true; }

// Two's complement truncation of v to `bits` bits, as a signed value.
static long long truncate_signed(const big &v, int bits) {
    big m = big(1) << bits;
    big t = v % m;
    if (t < 0) t += m;
    unsigned long long u = t.convert_to<unsigned long long>();
    return (long long)u;
}

int i_integer::c_int() const { return (int)truncate_signed(r->v, 32); }
long i_integer::c_long() const { return (long)truncate_signed(r->v, 64); }
long long i_integer::c_long_long() const { return truncate_signed(r->v, 64); }
unsigned long i_integer::c_unsigned_long() const { return (unsigned long)truncate_signed(r->v, 64); }
bool i_integer::is_c_int() const { return r->v >= INT32_MIN && r->v <= INT32_MAX; }
bool i_integer::is_c_long() const { return r->v >= INT64_MIN && r->v <= INT64_MAX; }
bool i_integer::is_c_unsigned_long() const { return r->v >= 0 && r->v <= UINT64_MAX; }

std::string i_integer::to_string(int base) const {
    if (base < 2 || base > 36) base = 10;
    big v = r->v;
    bool neg = v < 0;
    if (neg) v = -v;
    std::string s;
    if (v == 0) s = "0";
    while (v > 0) {
        int d = (int)(v % base).convert_to<int>();
        s.push_back((char)(d < 10 ? '0' + d : 'a' + d - 10));
        v /= base;
    }
    if (neg) s.push_back('-');
    return std::string(s.rbegin(), s.rend());
}

void i_integer::write(char *buffer, int base) const {
    std::string s = to_string(base);
    std::memcpy(buffer, s.c_str(), s.size() + 1);
}

int i_integer::written_length(int base) const { return (int)to_string(base).size(); }

#define RESULT(expr)             \
    i_integer res;               \
    res.r->v = (expr);           \
    return res

i_integer i_integer::add(const i_integer &o) const { RESULT(r->v + o.r->v); }
i_integer i_integer::subtract(const i_integer &o) const { RESULT(r->v - o.r->v); }
i_integer i_integer::multiply(const i_integer &o) const { RESULT(r->v * o.r->v); }
i_integer i_integer::div(const i_integer &o) const {
    if (o.r->v == 0) return i_integer();
    RESULT(r->v / o.r->v);
}
i_integer i_integer::mod(const i_integer &o) const {
    if (o.r->v == 0) return i_integer();
    RESULT(r->v % o.r->v);
}
i_integer i_integer::negate() const { RESULT(-r->v); }
i_integer i_integer::abs() const { RESULT(r->v < 0 ? big(-r->v) : r->v); }

i_integer i_integer::operator<<(int count) const {
    if (count < 0) return *this >> -count;
    RESULT(r->v << count);
}

i_integer i_integer::operator>>(int count) const {
    if (count < 0) return *this << -count;
    if (r->v >= 0) { RESULT(r->v >> count); }
    // Floor for negatives: -((-v - 1) >> n) - 1.
    big t = -r->v - 1;
    RESULT(big(-(t >> count)) - 1);
}

bool i_integer::is_equal_to(const i_integer &o) const { return r->v == o.r->v; }
bool i_integer::is_less_than(const i_integer &o) const { return r->v < o.r->v; }
bool i_integer::is_negative() const { return r->v < 0; }
bool i_integer::is_zero() const { return r->v == 0; }
int i_integer::compare(const i_integer &o) const { return r->v < o.r->v ? -1 : (r->v == o.r->v ? 0 : 1); }
