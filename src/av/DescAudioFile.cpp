#include "DescAudioFile.h"

#include "../core/ByteReader.h"
#include "../core/Diagnostics.h"

// ---------------------------------------------------------------- audio source

int TCAudioSource::Parse(const unsigned char* data)
{
    DeleteAll();
    if (!data)
        return 0;
    m_recordLength = data[0];
    TCByteReader reader(data + 1, m_recordLength);
    const unsigned int head = reader.U8();
    m_fileNamePresent = head & 0x80;
    m_audioFormat = static_cast<unsigned char>(head & 0x7F);
    if (m_fileNamePresent) {
        m_fileNameLength = static_cast<unsigned char>(reader.U8());
        if (m_fileNameLength > 0 && reader.Has(m_fileNameLength)) {
            m_fileName.assign(reader.Here(), reader.Here() + m_fileNameLength);
            reader.Skip(m_fileNameLength);
        }
    }
    const int headBytes = reader.Consumed();
    m_audioSource = static_cast<unsigned char>(reader.U8());
    switch (m_audioSource) {
    case 1:
        if (!reader.Has(8))
            return headBytes + 9;
        m_programNumber = static_cast<unsigned short>(reader.U16());
        m_carouselId = reader.U32();
        m_applicationId = static_cast<unsigned short>(reader.U16());
        return headBytes + 9;
    case 2:
        if (!reader.Has(12))
            return headBytes + 13;
        m_programNumber = static_cast<unsigned short>(reader.U16());
        m_downloadId = reader.U32();
        m_moduleId = reader.U32();
        m_applicationId = static_cast<unsigned short>(reader.U16());
        return headBytes + 13;
    default:
        // A source of another kind counts as good whatever it holds.
        return m_recordLength;
    }
}

bool TCAudioSource::Set(const TCAudioSource& other)
{
    DeleteAll();
    *this = other;
    return true;
}

void TCAudioSource::DeleteAll()
{
    *this = TCAudioSource();
}

// ---------------------------------------------------------------- audio file

TCDescAudioFile::TCDescAudioFile() : TCBaseDesc(0x02) {}

TCDescAudioFile::~TCDescAudioFile()
{
    DeleteAll();
}

void TCDescAudioFile::DeleteAll()
{
    m_numberOfSources = 0;
    m_sources.clear();
}

TCBaseDesc* TCDescAudioFile::Fork() const
{
    return t_ForkAs(new TCDescAudioFile());
}

int TCDescAudioFile::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length < 1)
        return 0;
    m_numberOfSources = payload[0];
    if (m_numberOfSources == 0 || length < 2)
        return 1;
    m_sources.resize(m_numberOfSources);
    int consumed = 1;
    for (TCAudioSource& source : m_sources) {
        const int recordLength = consumed < length ? payload[consumed] : 0;
        if (consumed >= length || consumed + 1 + recordLength > length)
            return length;
        if (source.Parse(payload + consumed) != recordLength) {
            source.DeleteAll();
            return length;
        }
        consumed += 1 + recordLength;
    }
    return consumed;
}

bool TCDescAudioFile::AudioSource(int index, TCAudioSource* out) const
{
    TCAudioSource* pAudioSource = out;
    if (!ZUM_ASSERT(pAudioSource))
        return false;
    if (index < 0 || index >= static_cast<int>(m_sources.size()) || index >= m_numberOfSources)
        return false;
    return out->Set(m_sources[static_cast<size_t>(index)]);
}
