// SPDX-License-Identifier: MIT

#include "services/Quotes.h"

#include <array>

namespace ambrelle {

namespace {

struct Row {
    const char16_t* source;
    const char16_t* text;
    const char16_t* note;
};

constexpr std::array rareWords{
    Row{u"Petrichor", u"The pleasant smell of earth after rain falls on dry ground.", u"noun · PET-ri-kor"},
    Row{u"Serendipity", u"Finding something good without looking for it.", u"noun · ser-en-DIP-i-tee"},
    Row{u"Ephemeral", u"Lasting a very short time; here and then gone.", u"adjective · ih-FEM-er-ul"},
    Row{u"Komorebi", u"Sunlight that falls through the leaves of trees.", u"noun, Japanese · koh-moh-REH-bee"},
    Row{u"Hygge", u"A cosy contentment in good company or alone.", u"noun, Danish · HOO-guh"},
    Row{u"Susurrus", u"A soft whispering or rustling, as of wind in leaves.", u"noun · soo-SUR-us"},
    Row{u"Apricity", u"The warmth of the sun on a winter's day.", u"noun · uh-PRIS-i-tee"},
    Row{u"Crepuscular", u"Active or appearing at dawn and dusk.", u"adjective · kreh-PUS-kyoo-lar"},
    Row{u"Limerence", u"The restless state of being in love.", u"noun · LIM-er-ence"},
    Row{u"Sonder", u"Knowing that every passer-by has a life as full as yours.", u"noun · SON-der"},
    Row{u"Wanderlust", u"A strong wish to travel and see the world.", u"noun, German · WON-der-lust"},
    Row{u"Halcyon", u"Calm, golden and happy, said of days gone by.", u"adjective · HAL-see-un"},
    Row{u"Ineffable", u"Too great or too fine to be put into words.", u"adjective · in-EF-uh-bul"},
    Row{u"Luminous", u"Giving off light; bright from within.", u"adjective · LOO-mi-nus"},
    Row{u"Mellifluous", u"Sweet and smooth to hear, like flowing honey.", u"adjective · meh-LIF-loo-us"},
    Row{u"Nebulous", u"Hazy, without clear edges.", u"adjective · NEB-yoo-lus"},
    Row{u"Quiescent", u"Quiet and at rest for the time being.", u"adjective · kwy-ES-ent"},
    Row{u"Sempiternal", u"Without beginning or end.", u"adjective · sem-pi-TER-nul"},
    Row{u"Zephyr", u"A gentle wind from the west.", u"noun · ZEF-er"},
    Row{u"Saudade", u"A tender longing for what is absent.", u"noun, Portuguese · sow-DAH-djuh"},
    Row{u"Lagom", u"Not too little and not too much; just right.", u"adverb, Swedish · LAH-gom"},
    Row{u"Sisu", u"Quiet courage that carries on against the odds.", u"noun, Finnish · SEE-soo"},
    Row{u"Gemütlich", u"Pleasant, unhurried and warm.", u"adjective, German · guh-MUET-likh"},
    Row{u"Tsundoku", u"Buying books and letting them pile up unread.", u"noun, Japanese · tsoon-DOH-koo"},
    Row{u"Meraki", u"Doing something with soul, love and care.", u"noun, Greek · meh-RAH-kee"},
    Row{u"Fernweh", u"An ache for places far away.", u"noun, German · FEHRN-vay"},
    Row{u"Duende", u"The power of art to move us deeply.", u"noun, Spanish · DWEN-day"},
    Row{u"Kintsugi", u"Mending broken pottery with seams of gold.", u"noun, Japanese · kin-TSOO-ghee"},
    Row{u"Palimpsest", u"A page scraped and written over, with traces of the old text.", u"noun · PAL-imp-sest"},
    Row{u"Penumbra", u"The half-shadow around a full shadow.", u"noun · pen-UM-bruh"},
    Row{u"Gossamer", u"Light and thin as floating spider silk.", u"adjective · GOSS-uh-mer"},
    Row{u"Lacuna", u"A gap; the part that is missing.", u"noun · luh-KYOO-nuh"},
    Row{u"Alacrity", u"Cheerful readiness to act.", u"noun · uh-LAK-ri-tee"},
    Row{u"Equanimity", u"An even temper, whatever happens.", u"noun · ek-wuh-NIM-i-tee"},
    Row{u"Perspicacious", u"Seeing and understanding clearly.", u"adjective · per-spi-KAY-shus"},
    Row{u"Ebullient", u"Bubbling over with enthusiasm.", u"adjective · ih-BUL-yent"},
    Row{u"Numinous", u"Filled with a sense of wonder and mystery.", u"adjective · NOO-mi-nus"},
    Row{u"Verdant", u"Green with growing grass and leaves.", u"adjective · VER-dunt"},
    Row{u"Vellichor", u"The wistful air of old bookshops.", u"noun · VEL-i-kor"},
    Row{u"Gloaming", u"The dim light after the sun has set.", u"noun, Scots · GLOH-ming"},
};

// What is handed down without a sure origin is "attributed to" somebody; "after" stands before a free rendering.
constexpr std::array sayings{
    Row{u"Ancient Greek proverb", u"Well begun is half done.", nullptr},
    Row{u"Japanese proverb", u"Fall seven times, stand up eight.", nullptr},
    Row{u"After the Dhammapada", u"What we think, we become.", nullptr},
    Row{u"After Laozi", u"A journey of a thousand miles begins beneath your feet.", nullptr},
    Row{u"Socrates, in Plato's Apology", u"The unexamined life is not worth living.", nullptr},
    Row{u"René Descartes", u"I think, therefore I am.", nullptr},
    Row{u"William Shakespeare, Hamlet", u"Brevity is the soul of wit.", nullptr},
    Row{u"Augustus, as told by Suetonius", u"Make haste slowly.", nullptr},
    Row{u"Benjamin Franklin", u"Little strokes fell great oaks.", nullptr},
    Row{u"Poor Richard's Almanack", u"Lost time is never found again.", nullptr},
    Row{u"John Donne", u"No man is an island.", nullptr},
    Row{u"Emily Dickinson", u"Hope is the thing with feathers.", nullptr},
    Row{u"Henry David Thoreau", u"Simplify, simplify.", nullptr},
    Row{u"Ralph Waldo Emerson", u"A foolish consistency is the hobgoblin of little minds.", nullptr},
    Row{u"Francis Bacon", u"Knowledge itself is power.", nullptr},
    Row{u"William Wordsworth", u"The child is father of the man.", nullptr},
    Row{u"John Keats", u"A thing of beauty is a joy for ever.", nullptr},
    Row{u"Attributed to Marie Curie", u"Nothing in life is to be feared; it is only to be understood.", nullptr},
    Row{u"Isaac Newton", u"If I have seen further, it is by standing on the shoulders of giants.", nullptr},
    Row{u"Albert Einstein", u"Imagination is more important than knowledge.", nullptr},
    Row{u"Louis Pasteur", u"Chance favours only the prepared mind.", nullptr},
    Row{u"Voltaire", u"The best is the enemy of the good.", nullptr},
    Row{u"Voltaire, Candide", u"We must cultivate our garden.", nullptr},
    Row{u"Blaise Pascal", u"The heart has its reasons, of which reason knows nothing.", nullptr},
    Row{u"Horace", u"Seize the day.", nullptr},
    Row{u"Virgil", u"Fortune favours the bold.", nullptr},
    Row{u"Latin proverb", u"While there is life, there is hope.", nullptr},
    Row{u"Seneca", u"It is not that we have a short time to live, but that we waste much of it.", nullptr},
    Row{u"Marcus Aurelius", u"Waste no more time arguing what a good man should be. Be one.", nullptr},
    Row{u"After Epictetus", u"It is not things that disturb us, but our judgements about them.", nullptr},
    Row{u"After Heraclitus", u"No one steps into the same river twice.", nullptr},
    Row{u"Inscription at Delphi", u"Know thyself.", nullptr},
    Row{u"Attributed to Archimedes", u"Give me a place to stand, and I will move the earth.", nullptr},
    Row{u"Attributed to Galileo Galilei", u"And yet it moves.", nullptr},
    Row{u"English proverb", u"Many hands make light work.", nullptr},
    Row{u"English proverb", u"Where there is a will, there is a way.", nullptr},
    Row{u"Proverb", u"The best time to plant a tree was twenty years ago. The second best is now.", nullptr},
    Row{u"Ovid", u"Dripping water hollows out the stone.", nullptr},
    Row{u"Japanese proverb", u"The frog in the well knows nothing of the great sea.", nullptr},
    Row{u"Italian proverb", u"Who goes slowly goes safely and goes far.", nullptr},
    Row{u"German proverb", u"Practice makes the master.", nullptr},
    Row{u"Russian proverb", u"Measure seven times, cut once.", nullptr},
    Row{u"François Rabelais", u"Appetite comes with eating.", nullptr},
    Row{u"French proverb", u"Little by little, the bird builds its nest.", nullptr},
    Row{u"Arabic proverb", u"Patience is the key to relief.", nullptr},
    Row{u"Edward Bulwer-Lytton", u"The pen is mightier than the sword.", nullptr},
    Row{u"Percy Bysshe Shelley", u"If winter comes, can spring be far behind?", nullptr},
    Row{u"Alexander Pope", u"To err is human, to forgive divine.", nullptr},
    Row{u"After Plutarch", u"The mind is not a vessel to be filled, but a fire to be kindled.", nullptr},
    Row{u"Henry Wadsworth Longfellow", u"Music is the universal language of mankind.", nullptr},
    Row{u"Walt Whitman", u"I am large, I contain multitudes.", nullptr},
    Row{u"Robert Frost", u"Two roads diverged in a wood, and I took the one less traveled by.", nullptr},
    Row{u"Confucius, Analects", u"Learning without thought is labour lost; thought without learning is perilous.",
        nullptr},
    Row{u"Friedrich Nietzsche", u"What does not kill me makes me stronger.", nullptr},
    Row{u"After Søren Kierkegaard", u"Life can only be understood backwards, but it must be lived forwards.", nullptr},
    Row{u"Scandinavian saying", u"There is no bad weather, only bad clothing.", nullptr},
};

template <std::size_t count> const Row& quoteOf(const std::array<Row, count>& rows, qint64 day)
{
    // A prime that shares no factor with the number of rows: neighbours in time are far apart in the table.
    constexpr qint64 stride = 7919;
    constexpr auto number = static_cast<qint64>(count);
    static_assert(number % stride != 0 && stride % number != 0);
    const qint64 place = day * stride % number;
    return rows[static_cast<std::size_t>(place < 0 ? place + number : place)];
}

} // namespace

Quote Quotes::entry(bool wantsWords, QDate date, int offset)
{
    constexpr qint64 dayBeforeTheEra = 1721425; // as a Julian day: the first day of the year 1 is number 1
    const qint64 day = date.toJulianDay() - dayBeforeTheEra + offset;
    const Row& row = wantsWords ? quoteOf(rareWords, day) : quoteOf(sayings, day);
    Quote quote{.text = QString::fromUtf16(row.text), .source = QString::fromUtf16(row.source)};
    if (row.note)
        quote.note = QString::fromUtf16(row.note);
    return quote;
}

} // namespace ambrelle
