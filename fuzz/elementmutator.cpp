// SPDX-License-Identifier: GPL-3.0-or-later
// Mutations that keep the tags of a document in balance, so that many inputs are well-formed to their end:
// a whole element is dropped, repeated, or put in the place of another one.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

/** From the "<" of an element to its "/>" or to the first end tag of its name; empty when it has none. */
std::string_view elementAt(std::string_view text)
{
    const std::size_t nameEnd = text.find_first_of(" \n/>", 1);
    const std::size_t tagEnd = text.find('>');
    if (nameEnd == std::string_view::npos || tagEnd == std::string_view::npos || nameEnd < 2)
        return {};
    if (text[tagEnd - 1] == '/')
        return text.substr(0, tagEnd + 1);
    const std::string endTag = "</" + std::string(text.substr(1, nameEnd - 1)) + '>';
    const std::size_t end = text.find(endTag, tagEnd);
    return end == std::string_view::npos ? std::string_view() : text.substr(0, end + endTag.size());
}

std::vector<std::string_view> elementsIn(std::string_view text)
{
    std::vector<std::string_view> elements;
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at + 1)) {
        const std::string_view element = elementAt(text.substr(at));
        if (!element.empty())
            elements.push_back(element);
    }
    return elements;
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed)
{
    std::minstd_rand random(seed);
    const std::string text(reinterpret_cast<const char *>(data), size);
    const std::vector<std::string_view> elements = elementsIn(text);
    if (elements.empty() || random() % 3 != 0)
        return LLVMFuzzerMutate(data, size, maxSize);

    const std::string_view place = elements[random() % elements.size()];
    const std::string_view other = elements[random() % elements.size()];
    const auto offset = static_cast<std::size_t>(place.data() - text.data());
    std::string mutated = text;
    switch (random() % 3) {
    case 0:
        mutated.erase(offset, place.size());
        break;
    case 1:
        mutated.insert(offset, other);
        break;
    default:
        mutated.replace(offset, place.size(), other);
        break;
    }
    mutated.resize(std::min(mutated.size(), maxSize));
    std::memcpy(data, mutated.data(), mutated.size());
    return mutated.size();
}
