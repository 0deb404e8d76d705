#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrix {

/// Writes JSON from its beginning to its end, compact and in UTF-8.
class JsonText {
  public:
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    /// Comes before each value of an object; needs no escapes.
    void key(std::string_view name);

    void value(bool truth);
    void value(int number) { value(static_cast<std::int64_t>(number)); }
    void value(std::int64_t number);
    /// With as many digits as it takes to read the same number again. One that is not finite, which JSON does not know,
    /// becomes null.
    void value(double number);
    /// Bytes that are no UTF-8 become U+FFFD.
    void value(std::string_view text);
    void value(const char* text) { value(std::string_view(text)); }

    const std::string& text() const { return text_; }

  private:
    void begin(char bracket);
    void end(char bracket);
    void separate();

    std::string text_;
};

} // namespace vantrix
