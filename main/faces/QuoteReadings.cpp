// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "services/Quotes.h"

namespace ambrelle {

QuoteReading quoteReading(const WidgetConfig& config, QDate today)
{
    const Quote quote = Quotes::entry(config.quoteWords, today);
    return {
        .text = quote.text, .source = quote.source, .note = quote.note.value_or(QString()), .word = config.quoteWords};
}

} // namespace ambrelle
