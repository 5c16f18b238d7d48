#ifndef ZUM_APPS_DESCAPPLICATIONSIGNALLING_H
#define ZUM_APPS_DESCAPPLICATIONSIGNALLING_H

#include "../core/BaseDesc.h"

// application_signalling_descriptor (0x6F) of a PMT stream: the application
// types whose AIT the stream carries, each with its AIT version.
class ZUM_EXPORT TCDescApplicationSignalling : public TCBaseDesc {
public:
    TCDescApplicationSignalling();
    ~TCDescApplicationSignalling() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // False if the type is not listed; else writes its version (the last one
    // listed) when `version` is not null.
    bool IsAppTypePresent(unsigned short type, char* version) const;
    // The entries as carried, a type listed twice included.
    unsigned int NumOfAppType() const { return m_count; }
    // 0xFFFF and -1 past the end.
    unsigned short AppType(unsigned int index) const;
    char AITVersion(unsigned int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The entries are read from the raw copy, three bytes each.
    unsigned int m_count = 0;
};

#endif
