#ifndef ZUM_AV_DESCAUDIOFILE_H
#define ZUM_AV_DESCAUDIOFILE_H

#include <vector>

#include "../core/BaseDesc.h"

// One audio source of an audio file descriptor: a file in a carousel or a
// download, or a source of another kind that is only named.
class ZUM_EXPORT TCAudioSource {
public:
    TCAudioSource() = default;
    virtual ~TCAudioSource() = default;

    // `data` points to the record length byte; nothing behind the record is
    // read. Returns the bytes decoded behind that byte.
    int Parse(const unsigned char* data);
    // A deep copy of `other`; always true.
    bool Set(const TCAudioSource& other);
    void DeleteAll();

    unsigned char RecordLength() const { return m_recordLength; }
    bool FileNamePresent() const { return m_fileNamePresent; }
    unsigned char AudioFormat() const { return m_audioFormat; }
    unsigned char FileNameLength() const { return m_fileNameLength; }
    // Null while there is no name.
    const unsigned char* FileName() const { return m_fileName.empty() ? nullptr : m_fileName.data(); }
    unsigned char AudioSourceType() const { return m_audioSource; }
    unsigned short ProgramNumber() const { return m_programNumber; }
    unsigned short ApplicationId() const { return m_applicationId; }
    unsigned int CarouselId() const { return m_carouselId; }
    unsigned int DownloadId() const { return m_downloadId; }
    unsigned int ModuleId() const { return m_moduleId; }

private:
    unsigned char m_recordLength = 0;
    bool m_fileNamePresent = false;
    unsigned char m_audioFormat = 0;
    unsigned char m_fileNameLength = 0;
    std::vector<unsigned char> m_fileName;
    unsigned char m_audioSource = 0;
    unsigned short m_programNumber = 0xFFFF;
    unsigned short m_applicationId = 0xFFFF;
    unsigned int m_carouselId = 0xFFFFFFFF;
    unsigned int m_downloadId = 0xFFFFFFFF;
    unsigned int m_moduleId = 0xFFFFFFFF;
};

// Audio file descriptor (0x02 in PSIP tables).
class ZUM_EXPORT TCDescAudioFile : public TCBaseDesc {
public:
    TCDescAudioFile();
    ~TCDescAudioFile() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // As sent, whether or not all records decoded.
    unsigned char NumberOfSources() const { return m_numberOfSources; }
    bool AudioSource(int index, TCAudioSource* out) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_numberOfSources = 0;
    // Records that did not decode keep their start values.
    std::vector<TCAudioSource> m_sources;
};

#endif
