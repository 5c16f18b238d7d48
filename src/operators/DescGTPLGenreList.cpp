#include "DescGTPLGenreList.h"

#include "../core/ByteReader.h"

namespace {

// Walks the whole records of a genre list body; returns the offset reached.
template <class Take>
int WalkGenres(const unsigned char* payload, int length, Take take)
{
    TCByteReader reader(payload, length);
    while (reader.Left() > 0) {
        GTPLGenre genre;
        genre.id = static_cast<unsigned short>(reader.U8());
        genre.nameLength = static_cast<unsigned char>(reader.U8());
        genre.name = reader.Here();
        if (reader.IsShort() || !reader.Skip(genre.nameLength))
            break;
        genre.trailing = static_cast<unsigned char>(reader.U8());
        if (reader.IsShort())
            break;
        if (genre.nameLength == 0)
            genre.name = nullptr;
        take(genre);
    }
    return reader.Consumed();
}

} // namespace

TCDescGTPLGenreList::TCDescGTPLGenreList(int tag) : TCBaseDesc(0x85), m_createdFor(tag) {}

void TCDescGTPLGenreList::DeleteAll() {}

TCBaseDesc* TCDescGTPLGenreList::Fork() const
{
    return t_ForkAs(new TCDescGTPLGenreList(m_createdFor));
}

std::map<unsigned short, GTPLGenre> TCDescGTPLGenreList::GetGenreMap() const
{
    std::map<unsigned short, GTPLGenre> genres;
    WalkGenres(t_Payload(), m_pRaw ? m_length : 0, [&genres](const GTPLGenre& g) { genres.emplace(g.id, g); });
    return genres;
}

int TCDescGTPLGenreList::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length == 0)
        return 0;
    return WalkGenres(payload, length, [](const GTPLGenre&) {});
}

TCDescGTPLGenreOfService::TCDescGTPLGenreOfService() : TCBaseDesc(0xCC) {}

void TCDescGTPLGenreOfService::DeleteAll() {}

TCBaseDesc* TCDescGTPLGenreOfService::Fork() const
{
    return t_ForkAs(new TCDescGTPLGenreOfService());
}

std::list<unsigned char> TCDescGTPLGenreOfService::GetGenreListOfService() const
{
    const unsigned char* payload = t_Payload();
    if (!payload || m_length < 2)
        return {};
    // The first byte is not a genre.
    return std::list<unsigned char>(payload + 1, payload + m_length);
}

int TCDescGTPLGenreOfService::t_Parse(const unsigned char* /*payload*/, unsigned char length)
{
    return length < 2 ? 1 : length;
}
