#include "linux/capture/redaction.h"

#include <algorithm>

#include "linux/kernel/text_scan.h"
#include "support/ascii_case.h"

namespace vantrix {
namespace {

bool isHex(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// Letters beyond ASCII count as such: a name ends before none of them.
bool isWordPart(char c) {
    return isDigit(c) || isLetter(c) || static_cast<unsigned char>(c) >= 0x80;
}

template<typename Is>
std::size_t runOf(std::string_view text, Is is) {
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), is) - text.begin());
}

bool endsWord(std::string_view text, std::size_t place) {
    return place >= text.size() || !isWordPart(text[place]);
}

/// All zeros, or all ones: means any, or none.
bool isPlain(std::string_view token) {
    const auto isOnly = [&](char wanted) {
        return std::all_of(token.begin(), token.end(), [=](char c) { return !isHex(c) || loweredASCII(c) == wanted; });
    };
    return isOnly('0') || isOnly('f');
}

/// "aa:bb:cc:dd:ee:ff", and longer ones, with colons, hyphens or underscores.
std::size_t hardwareAddress(std::string_view text) {
    const char separator = text.size() > 2 ? text[2] : ' ';
    if (separator != ':' && separator != '-' && separator != '_')
        return 0;
    std::size_t groups = 0;
    std::size_t end = 0;
    for (std::size_t at = 0; at + 2 <= text.size() && isHex(text[at]) && isHex(text[at + 1]); at += 3) {
        ++groups;
        end = at + 2;
        if (end >= text.size() || text[end] != separator)
            break;
    }
    return groups >= 6 && endsWord(text, end) ? end : 0;
}

/// 8-4-4-4-12 digits.
std::size_t uuid(std::string_view text) {
    constexpr std::string_view form = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    if (text.size() < form.size() || !endsWord(text, form.size()))
        return 0;
    const bool fits = std::equal(form.begin(), form.end(), text.begin(),
                                 [](char wanted, char c) { return wanted == '-' ? c == '-' : isHex(c); });
    return fits ? form.size() : 0;
}

/// A hardware address without separators, and what is as long as serial numbers and network addresses are. Counters are
/// written in decimal.
std::size_t bareDigits(std::string_view text) {
    const std::size_t length = runOf(text, isHex);
    const auto token = text.substr(0, length);
    const bool hasLetter = std::any_of(token.begin(), token.end(), isLetter);
    const bool isLong = length == 32 || (hasLetter && (length == 12 || length >= 16));
    return isLong && endsWord(text, length) ? length : 0;
}

/// Of an interface that is named after its address: "enxaabbccddeeff", "wlxaabbccddeeff".
std::size_t namedAddress(std::string_view text) {
    const bool hasPrefix = text.starts_with("enx") || text.starts_with("wlx") || text.starts_with("wwx");
    return hasPrefix && runOf(text.substr(3), isHex) == 12 && endsWord(text, 15) ? 15 : 0;
}

std::size_t ipv4Address(std::string_view text) {
    const std::size_t length = runOf(text, [](char c) { return isDigit(c) || c == '.'; });
    const auto token = text.substr(0, length);
    const bool isLocal = token.starts_with("127.") || token.starts_with("0.");
    return std::count(token.begin(), token.end(), '.') == 3 && token.find("..") == token.npos && token.size() >= 7 &&
                   token.size() <= 15 && token.back() != '.' && endsWord(text, length) && !isLocal
               ? length
               : 0;
}

std::size_t ipv6Address(std::string_view text) {
    std::size_t length = runOf(text, [](char c) { return isHex(c) || c == ':'; });
    if (length > 2 && text[length - 1] == ':' && text[length - 2] != ':')
        --length; // of the text around it
    const auto token = text.substr(0, length);
    const bool isShort = token.find("::") != token.npos && token.size() > 4;
    return (isShort || std::count(token.begin(), token.end(), ':') == 7) && endsWord(text, length) ? length : 0;
}

bool isSecretKey(std::string_view key) {
    const std::string lowered = loweredASCII(key);
    constexpr std::string_view secrets[] = {"serial", "uuid", "uniq", "wwid", "wwn", "machine_id", "asset"};
    return std::any_of(std::begin(secrets), std::end(secrets),
                       [&](std::string_view secret) { return lowered.find(secret) != lowered.npos; });
}

/// People name their devices.
bool isNameKey(std::string_view key) {
    return key == "HID_NAME" || key == "NAME" || key == "POWER_SUPPLY_MODEL_NAME" || key == "model_name" ||
           key == "name" || key == "label";
}

bool isKernelsWord(std::string_view word) {
    constexpr std::string_view words[] = {
        "root",   "user", "admin", "localhost", "linux", "debian",  "ubuntu",  "intel",  "amd",     "nvidia",
        "core",   "cpu",  "gpu",   "acpi",      "power", "battery", "adapter", "device", "devices", "disk",
        "memory", "net",  "wifi",  "wlan",      "eth",   "lan",     "usb",     "pci",    "mouse",   "keyboard"};
    return word.size() < 3 || std::find(std::begin(words), std::end(words), word) != std::end(words);
}

} // namespace

Redaction::Redaction(const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        const std::string lowered = loweredASCII(word);
        if (!isKernelsWord(lowered))
            words_.emplace_back(lowered, "name" + std::to_string(numberOf(lowered)));
    }
}

std::string Redaction::network(const std::string& name) {
    if (name.empty())
        return name;
    std::string replacement = "network-" + std::to_string(numberOf(name));
    const std::string lowered = loweredASCII(name);
    const bool isKnown =
        std::any_of(words_.begin(), words_.end(), [&](const auto& word) { return word.first == lowered; });
    if (!isKnown && !isKernelsWord(lowered))
        words_.insert(words_.begin(), {lowered, replacement}); // which may hold the others
    return replacement;
}

std::string Redaction::text(std::string_view text, std::string_view path) {
    const auto file = path.substr(path.rfind('/') + 1);
    if (isSecretKey(file))
        return serial(text);
    if (path.ends_with("net/route"))
        return routes(text);
    return withoutTokens(withoutKeys(text, path));
}

/// Values of keys, as in uevent ("SERIAL=…") and /proc/cpuinfo ("Serial : …"), and names.
std::string Redaction::withoutKeys(std::string_view text, std::string_view path) {
    std::string result;
    const auto file = path.substr(path.rfind('/') + 1);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const auto line = text.substr(0, end);
        const auto sign = line.find_first_of("=:");
        const auto key = line.substr(0, std::min(sign, line.size()));
        const auto value = sign == line.npos ? std::string_view() : line.substr(sign + 1);
        if (isNameKey(file))
            result += owned(line);
        else if (sign != line.npos && isSecretKey(key) && hardwareAddress(value) == 0)
            result.append(line.substr(0, sign + 1)) += serial(value);
        else if (sign != line.npos && isNameKey(key))
            result.append(line.substr(0, sign + 1)) += owned(value);
        else
            result += line;
        if (end < text.size())
            result += '\n';
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

/// "Ada's mouse", "mouse von Ada".
std::string Redaction::owned(std::string_view name) {
    for (const std::string_view sign : {"'s ", "\u2019s ", "' ", "\u2019 "}) {
        if (const auto place = name.find(sign); place != name.npos) {
            const auto start = name.find_first_not_of(" \"");
            return std::string(name.substr(0, start)) + "Name" +
                   std::to_string(numberOf(loweredASCII(name.substr(start, place - start)))) +
                   std::string(name.substr(place));
        }
    }
    for (const std::string_view sign : {" von ", " de ", " d'", " d\u2019", " di ", " van ", " of "}) {
        if (const auto place = name.find(sign); place != name.npos) {
            const auto start = place + sign.size();
            const bool isQuoted = name.ends_with('"');
            const auto owner = name.substr(start, name.size() - start - (isQuoted ? 1 : 0));
            return std::string(name.substr(0, start)) + "Name" + std::to_string(numberOf(loweredASCII(owner))) +
                   (isQuoted ? "\"" : "");
        }
    }
    return std::string(name);
}

/// Destination and gateway of each line of /proc/net/route; the mask tells nothing.
std::string Redaction::routes(std::string_view text) {
    std::string result;
    while (const auto line = takeLine(text)) {
        std::size_t column = 0;
        std::string_view rest = *line;
        while (!rest.empty()) {
            const std::size_t length = std::min(rest.find('\t'), rest.size());
            const auto word = rest.substr(0, length);
            const bool isAddress = (column == 1 || column == 2) && word.size() == 8 && runOf(word, isHex) == 8;
            result += isAddress && !isPlain(word) ? digits(word) : withoutTokens(word);
            if (length < rest.size())
                result += '\t';
            rest.remove_prefix(std::min(length + 1, rest.size()));
            ++column;
        }
        result += '\n';
    }
    return result;
}

std::string Redaction::withoutTokens(std::string_view text) {
    std::string result;
    for (std::size_t place = 0; place < text.size();) {
        const bool isStart =
            place == 0 || !isWordPart(text[place - 1]) || (place > 1 && text.substr(place - 2, 2) == "0x");
        std::size_t length = 0;
        std::string replacement;
        if (isStart)
            replacement = replacedAt(text, place, length);
        if (length > 0)
            originals_.emplace(replacement, text.substr(place, length));
        result += length > 0 ? replacement : std::string(1, text[place]);
        place += std::max<std::size_t>(length, 1);
    }
    return result;
}

/// What stands for the token that begins there; `length` is left at 0 without one.
std::string Redaction::replacedAt(std::string_view text, std::size_t place, std::size_t& length) {
    const auto rest = text.substr(place);
    for (const auto find : {hardwareAddress, uuid, bareDigits}) {
        length = find(rest);
        if (length > 0)
            return isPlain(rest.substr(0, length)) ? std::string(rest.substr(0, length))
                                                   : digits(rest.substr(0, length));
    }
    if ((length = namedAddress(rest)) > 0)
        return std::string(rest.substr(0, 3)) + digits(rest.substr(3, length - 3));
    const bool isInside = place > 0 && (text[place - 1] == '.' || text[place - 1] == ':');
    if (!isInside && (length = ipv4Address(rest)) > 0)
        return "192.0.2." + std::to_string(numberOf(std::string(rest.substr(0, length))) % 254 + 1);
    if (!isInside && (length = ipv6Address(rest)) > 0)
        return "2001:db8::" + std::to_string(numberOf(std::string(rest.substr(0, length))));
    return wordAt(rest, length);
}

std::string Redaction::original(std::string_view shown) const {
    std::string name(shown);
    for (const auto& [replacement, original] : originals_) {
        const auto place = name.find(replacement);
        if (place != name.npos && (place == 0 || !isWordPart(name[place - 1])) &&
            endsWord(name, place + replacement.size()))
            name.replace(place, replacement.size(), original);
    }
    return name;
}

std::string Redaction::wordAt(std::string_view text, std::size_t& length) {
    for (const auto& [word, replacement] : words_) {
        if (text.size() < word.size() || !endsWord(text, word.size()) ||
            loweredASCII(text.substr(0, word.size())) != word)
            continue;
        length = word.size();
        return replacement;
    }
    return {};
}

/// As many hexadecimal digits, separated alike.
std::string Redaction::digits(std::string_view original) {
    std::string canonical;
    std::copy_if(original.begin(), original.end(), std::back_inserter(canonical), isHex);
    std::size_t number = numberOf(loweredASCII(canonical));
    std::string result(original);
    for (auto place = result.rbegin(); place != result.rend(); ++place) {
        if (!isHex(*place))
            continue;
        *place = "0123456789abcdef"[number % 16];
        number /= 16;
    }
    if (canonical.size() == 12)
        result[1] = '2'; // of nobody: given by hand
    return result;
}

/// As many letters and digits at the same places.
std::string Redaction::serial(std::string_view original) {
    std::string canonical;
    std::copy_if(original.begin(), original.end(), std::back_inserter(canonical), isWordPart);
    if (isPlain(canonical) && std::all_of(canonical.begin(), canonical.end(), isHex))
        return std::string(original); // none was given
    std::size_t number = numberOf(loweredASCII(canonical));
    std::string result(original);
    for (auto place = result.rbegin(); place != result.rend(); ++place) {
        if (!isWordPart(*place))
            continue;
        const bool isCounted = number > 0;
        *place = isCounted ? static_cast<char>('0' + number % 10) : isDigit(*place) ? '0' : 'X';
        number /= 10;
    }
    return result;
}

std::size_t Redaction::numberOf(std::string original) {
    return numbers_.emplace(std::move(original), numbers_.size() + 1).first->second;
}

} // namespace vantrix
