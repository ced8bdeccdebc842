// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/SelectionOffer.h"

#include <algorithm>

namespace {

class Offers {
public:
    void add(const QByteArray &target, const QByteArray &type, int format, const QByteArray &bytes, bool isText = false)
    {
        const bool known =
            std::ranges::any_of(m_offers, [&](const SelectionOffer &offer) { return offer.target == target; });
        if (!known) {
            m_offers.append({target, type, format, bytes, isText});
        }
    }

    void addText(const QByteArray &utf8)
    {
        add("UTF8_STRING", "UTF8_STRING", 8, utf8, true);
        add("text/plain;charset=utf-8", "text/plain;charset=utf-8", 8, utf8, true);
        add("text/plain", "text/plain", 8, utf8, true);
        add("TEXT", "UTF8_STRING", 8, utf8, true); // the answer's type tells the encoding
        const auto text = QString::fromUtf8(utf8);
        if (std::ranges::all_of(text, [](QChar character) { return character.unicode() <= 0xFF; })) {
            add("STRING", "STRING", 8, text.toLatin1(), true);
        }
    }

    QList<SelectionOffer> take() { return std::move(m_offers); }

private:
    QList<SelectionOffer> m_offers;
};

} // namespace

QList<SelectionOffer> selectionOffers(const PasteboardItem &item)
{
    Offers offers;
    for (auto data = item.cbegin(); data != item.cend(); ++data) {
        const auto target = data.key().toUtf8();
        const auto type = data->nativeType.isEmpty() ? target : data->nativeType.toUtf8();
        const bool validFormat = data->nativeFormat == 8 || data->nativeFormat == 16 || data->nativeFormat == 32;
        if (data.key() != Pasteboard::plainString) {
            offers.add(target, type, validFormat ? data->nativeFormat : 8, data->bytes);
        }
    }
    const auto text = item.constFind(Pasteboard::plainString.toString());
    if (text != item.cend()) {
        offers.addText(text->bytes);
    }
    if (item.contains(Pasteboard::transientType.toString())) {
        offers.add("x-kde-passwordManagerHint", "x-kde-passwordManagerHint", 8, "secret");
    }
    return offers.take();
}

PasteboardItem mergedItem(const QList<PasteboardItem> &items)
{
    PasteboardItem merged;
    for (const auto &item : items) {
        for (auto data = item.cbegin(); data != item.cend(); ++data) {
            if (!merged.contains(data.key())) {
                merged.insert(data.key(), data.value());
            }
        }
    }
    return merged;
}
