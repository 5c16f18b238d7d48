#ifndef ZUM_AV_DESCAVCVIDEO_H
#define ZUM_AV_DESCAVCVIDEO_H

#include "../core/BaseDesc.h"

// Video stream descriptors: AVC, HEVC, frame rate, resolution class and the
// stereoscopic family.

// AVC_video_descriptor (0x28).
class ZUM_EXPORT TCDescAVCVideo : public TCBaseDesc {
public:
    TCDescAVCVideo();
    ~TCDescAVCVideo() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ProfileIdc() const { return m_profileIdc; }
    unsigned char ConstraintSet0() const { return m_constraintSet0; }
    unsigned char ConstraintSet1() const { return m_constraintSet1; }
    unsigned char ConstraintSet2() const { return m_constraintSet2; }
    unsigned char AVCCompatibleFlags() const { return m_compatibleFlags; }
    unsigned char LevelIdc() const { return m_levelIdc; }
    unsigned char AVCStillPresent() const { return m_stillPresent; }
    unsigned char AVC24HourPicture() const { return m_24HourPicture; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_profileIdc = 0;
    unsigned char m_constraintSet0 = 0;
    unsigned char m_constraintSet1 = 0;
    unsigned char m_constraintSet2 = 0;
    unsigned char m_compatibleFlags = 0;
    unsigned char m_levelIdc = 0;
    unsigned char m_stillPresent = 0;
    unsigned char m_24HourPicture = 0;
};

// HEVC_video_descriptor (0x38); no factory makes it, a caller parses it.
class ZUM_EXPORT TCDescHEVC : public TCBaseDesc {
public:
    TCDescHEVC();
    ~TCDescHEVC() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char ProfileSpace() const { return m_profileSpace; }
    unsigned char TierFlag() const { return m_tierFlag; }
    unsigned char ProfileIdc() const { return m_profileIdc; }
    unsigned int ProfileCompatibility() const { return m_profileCompatibility; }
    unsigned char ProgressiveSource() const { return m_progressiveSource; }
    unsigned char InterlacedSource() const { return m_interlacedSource; }
    unsigned char NonPackedConstraint() const { return m_nonPackedConstraint; }
    unsigned char FrameOnlyConstraint() const { return m_frameOnlyConstraint; }
    unsigned char LevelIdc() const { return m_levelIdc; }
    unsigned char TemporalLayerSubsetFlag() const { return m_temporalLayerSubsetFlag; }
    unsigned char HEVCStillPresent() const { return m_stillPresent; }
    unsigned char HEVC24HourPicture() const { return m_24HourPicture; }
    unsigned char TemporalIdMin() const { return m_temporalIdMin; }
    unsigned char TemporalIdMax() const { return m_temporalIdMax; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_profileSpace = 0xFF;
    unsigned char m_tierFlag = 0;
    unsigned char m_profileIdc = 0xFF;
    unsigned int m_profileCompatibility = 0xFFFFFFFF;
    unsigned char m_progressiveSource = 0;
    unsigned char m_interlacedSource = 0;
    unsigned char m_nonPackedConstraint = 0;
    unsigned char m_frameOnlyConstraint = 0;
    unsigned char m_levelIdc = 0xFF;
    unsigned char m_temporalLayerSubsetFlag = 0;
    unsigned char m_stillPresent = 0;
    unsigned char m_24HourPicture = 0;
    unsigned char m_temporalIdMin = 0xFF;
    unsigned char m_temporalIdMax = 0xFF;
};

// Frame rate descriptor (0x82); a caller parses it. Its value is not
// decoded yet: it stays 0xFFFF.
class ZUM_EXPORT TCDescFrameRate : public TCBaseDesc {
public:
    TCDescFrameRate();
    ~TCDescFrameRate() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short FrameRate() const { return m_frameRate; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_frameRate = 0xFFFF;
};

// Resolution class (0xE1, PSIP): one class number.
class ZUM_EXPORT TCDescResolutionClass : public TCBaseDesc {
public:
    TCDescResolutionClass();
    ~TCDescResolutionClass() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int ClassNumber() const { return m_classNumber; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_classNumber = 0;
};

// Stereoscopic_program_info_descriptor (0x35).
class ZUM_EXPORT TCDescStereoScopicProgramInfo : public TCBaseDesc {
public:
    TCDescStereoScopicProgramInfo();
    ~TCDescStereoScopicProgramInfo() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    int StereoscopicServiceType() const { return m_serviceType; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    int m_serviceType = -1;
};

// Stereoscopic_video_info_descriptor (0x36).
class ZUM_EXPORT TCDescStereoScopicVideoInfo : public TCBaseDesc {
public:
    TCDescStereoScopicVideoInfo();
    ~TCDescStereoScopicVideoInfo() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char BaseVideoFlag() const { return m_baseVideoFlag; }
    unsigned char LeftViewFlag() const { return m_leftViewFlag; }
    unsigned char UsableAs2D() const { return m_usableAs2D; }
    unsigned char HorizontalUpsamplingFactor() const { return m_horizontalFactor; }
    unsigned char VerticalUpsamplingFactor() const { return m_verticalFactor; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_baseVideoFlag = 0;
    unsigned char m_leftViewFlag = 0;
    unsigned char m_usableAs2D = 0;
    unsigned char m_horizontalFactor = 0xFF;
    unsigned char m_verticalFactor = 0xFF;
};

// Korean stereoscopic synchronisation (0x38 in Korean program tables): a
// 33-bit and a 32-bit value.
class ZUM_EXPORT TCDescStereoScopicSyncronization : public TCBaseDesc {
public:
    TCDescStereoScopicSyncronization();
    ~TCDescStereoScopicSyncronization() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned long long FirstValue() const { return m_first; }
    unsigned int SecondValue() const { return m_second; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned long long m_first = ~0ULL;
    unsigned int m_second = 0xFFFFFFFF;
};

#endif
