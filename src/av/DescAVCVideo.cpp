#include "DescAVCVideo.h"

#include "../core/ByteReader.h"
#include "../core/Log.h"

// ---------------------------------------------------------------- AVC

TCDescAVCVideo::TCDescAVCVideo() : TCBaseDesc(0x28) {}

TCDescAVCVideo::~TCDescAVCVideo()
{
    DeleteAll();
}

void TCDescAVCVideo::DeleteAll()
{
    m_profileIdc = m_constraintSet0 = m_constraintSet1 = m_constraintSet2 = 0;
    m_compatibleFlags = m_levelIdc = m_stillPresent = m_24HourPicture = 0;
}

TCBaseDesc* TCDescAVCVideo::Fork() const
{
    return t_ForkAs(new TCDescAVCVideo());
}

int TCDescAVCVideo::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // The four bytes are fixed; a shorter body keeps the fields it holds.
    if (length > 0)
        m_profileIdc = payload[0];
    if (length > 1) {
        m_constraintSet0 = (payload[1] >> 7) & 1;
        m_constraintSet1 = (payload[1] >> 6) & 1;
        m_constraintSet2 = (payload[1] >> 5) & 1;
        m_compatibleFlags = payload[1] & 0x1F;
    }
    if (length > 2)
        m_levelIdc = payload[2];
    if (length > 3) {
        m_stillPresent = (payload[3] >> 7) & 1;
        m_24HourPicture = (payload[3] >> 6) & 1;
    }
    return 4;
}

// ---------------------------------------------------------------- HEVC

TCDescHEVC::TCDescHEVC() : TCBaseDesc(0x38) {}

TCDescHEVC::~TCDescHEVC()
{
    DeleteAll();
}

void TCDescHEVC::DeleteAll()
{
    m_profileSpace = 0xFF;
    m_tierFlag = 0;
    m_profileIdc = 0xFF;
    m_profileCompatibility = 0xFFFFFFFF;
    m_progressiveSource = m_interlacedSource = m_nonPackedConstraint = m_frameOnlyConstraint = 0;
    m_levelIdc = 0xFF;
    m_temporalLayerSubsetFlag = m_stillPresent = m_24HourPicture = 0;
    m_temporalIdMin = m_temporalIdMax = 0xFF;
}

TCBaseDesc* TCDescHEVC::Fork() const
{
    return t_ForkAs(new TCDescHEVC());
}

int TCDescHEVC::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    // Fixed fields; each is read only where the body holds its byte.
    if (length > 0) {
        m_profileSpace = payload[0] >> 6;
        m_tierFlag = (payload[0] >> 5) & 1;
        m_profileIdc = payload[0] & 0x1F;
    }
    if (length > 4)
        m_profileCompatibility = ReadBE32(payload + 1);
    if (length > 5) {
        m_progressiveSource = (payload[5] >> 7) & 1;
        m_interlacedSource = (payload[5] >> 6) & 1;
        m_nonPackedConstraint = (payload[5] >> 5) & 1;
        m_frameOnlyConstraint = (payload[5] >> 4) & 1;
    }
    if (length > 11)
        m_levelIdc = payload[11];
    if (length > 12) {
        m_temporalLayerSubsetFlag = (payload[12] >> 7) & 1;
        m_stillPresent = (payload[12] >> 6) & 1;
        m_24HourPicture = (payload[12] >> 5) & 1;
    }
    if (!m_temporalLayerSubsetFlag)
        return 13;
    if (length > 13)
        m_temporalIdMin = payload[13] & 0x07;
    if (length > 14)
        m_temporalIdMax = payload[14] & 0x07;
    return 15;
}

// ---------------------------------------------------------------- frame rate

TCDescFrameRate::TCDescFrameRate() : TCBaseDesc(0x82) {}

TCDescFrameRate::~TCDescFrameRate()
{
    DeleteAll();
}

void TCDescFrameRate::DeleteAll()
{
    m_frameRate = 0xFFFF;
}

TCBaseDesc* TCDescFrameRate::Fork() const
{
    return t_ForkAs(new TCDescFrameRate());
}

int TCDescFrameRate::t_Parse(const unsigned char* /*payload*/, unsigned char /*length*/)
{
    // What the two bytes are to hold is not settled: nothing is decoded.
    DeleteAll();
    return 2;
}

// ---------------------------------------------------------------- resolution class

TCDescResolutionClass::TCDescResolutionClass() : TCBaseDesc(0xE1) {}

TCDescResolutionClass::~TCDescResolutionClass()
{
    DeleteAll();
}

void TCDescResolutionClass::DeleteAll()
{
    m_classNumber = 0;
}

TCBaseDesc* TCDescResolutionClass::Fork() const
{
    return t_ForkAs(new TCDescResolutionClass());
}

int TCDescResolutionClass::t_Parse(const unsigned char* payload, unsigned char length)
{
    if (length != 1)
        return length;
    m_classNumber = payload[0] & 0x0F;
    return 1;
}

// ---------------------------------------------------------------- stereoscopic program info

TCDescStereoScopicProgramInfo::TCDescStereoScopicProgramInfo() : TCBaseDesc(0x35) {}

TCDescStereoScopicProgramInfo::~TCDescStereoScopicProgramInfo()
{
    DeleteAll();
}

void TCDescStereoScopicProgramInfo::DeleteAll()
{
    m_serviceType = -1;
}

TCBaseDesc* TCDescStereoScopicProgramInfo::Fork() const
{
    return t_ForkAs(new TCDescStereoScopicProgramInfo());
}

int TCDescStereoScopicProgramInfo::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length != 1) {
        ZUM_LOGD("TCDescStereoScopicProgramInfo::t_Parse, len[%i] < STEREOSCOPIC_BODY_LEN[%i]", length, 1);
        return length;
    }
    m_serviceType = payload[0] & 0x07;
    return 1;
}

// ---------------------------------------------------------------- stereoscopic video info

TCDescStereoScopicVideoInfo::TCDescStereoScopicVideoInfo() : TCBaseDesc(0x36) {}

TCDescStereoScopicVideoInfo::~TCDescStereoScopicVideoInfo()
{
    DeleteAll();
}

void TCDescStereoScopicVideoInfo::DeleteAll()
{
    m_baseVideoFlag = m_leftViewFlag = m_usableAs2D = 0;
    m_horizontalFactor = m_verticalFactor = 0xFF;
}

TCBaseDesc* TCDescStereoScopicVideoInfo::Fork() const
{
    return t_ForkAs(new TCDescStereoScopicVideoInfo());
}

int TCDescStereoScopicVideoInfo::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length == 0) {
        ZUM_LOGD("TCDescStereoScopicSyncronization::t_Parse, len[%i] < 2[%i]", length, 2);
        return 0;
    }
    m_baseVideoFlag = payload[0] & 1;
    if (m_baseVideoFlag) {
        if (length != 2) {
            ZUM_LOGD("TCDescStereoScopicSyncronization::t_Parse, len[%i] < STEREOSCOPIC_VIDEO_FLAG_SIZE[%i]",
                     length, 2);
            return length;
        }
        m_leftViewFlag = payload[1] & 1;
        return 2;
    }
    if (length != 3) {
        ZUM_LOGD("TCDescStereoScopicSyncronization::t_Parse, len[%i] < 2[%i]", length, 3);
        return length;
    }
    m_usableAs2D = payload[1] & 1;
    m_horizontalFactor = payload[2] >> 4;
    m_verticalFactor = payload[2] & 0x0F;
    return 3;
}

// ---------------------------------------------------------------- stereoscopic synchronisation

TCDescStereoScopicSyncronization::TCDescStereoScopicSyncronization() : TCBaseDesc(0x38) {}

TCDescStereoScopicSyncronization::~TCDescStereoScopicSyncronization()
{
    DeleteAll();
}

void TCDescStereoScopicSyncronization::DeleteAll()
{
    m_first = ~0ULL;
    m_second = 0xFFFFFFFF;
}

TCBaseDesc* TCDescStereoScopicSyncronization::Fork() const
{
    return t_ForkAs(new TCDescStereoScopicSyncronization());
}

int TCDescStereoScopicSyncronization::t_Parse(const unsigned char* payload, unsigned char length)
{
    DeleteAll();
    if (length != 8) {
        ZUM_LOGD("TCDescStereoScopicSyncronization::t_Parse, len[%i] < STEREOSCOPIC_SYNCRONIZATION_BODY_LEN[%i]",
                 length, 8);
        return length;
    }
    // Byte 4 counts in both values: its top bit ends the first, all of it starts the second.
    m_first = (static_cast<unsigned long long>(ReadBE32(payload)) << 1) + (payload[4] >> 7);
    m_second = (static_cast<unsigned int>(payload[4]) << 17) + (static_cast<unsigned int>(payload[5]) << 9) +
               (static_cast<unsigned int>(payload[6]) << 1) + (payload[7] >> 7);
    return 8;
}
