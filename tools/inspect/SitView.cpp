#include "inspect/SitView.h"

#include <vector>

#include "inspect/Describers.h"
#include "program/SITParser.h"

namespace zuminspect {

namespace {

Json Texts(const TCSITProgram& program, const TextDecoder& text)
{
    Json texts = Json::array();
    for (int type = TCSITProgram::TEXT_TYPE_TITLE; type < TCSITProgram::MAX_TEXT_TYPE; ++type) {
        std::vector<char> buffer(static_cast<size_t>(program.TextLength(type)) + 1);
        int length = static_cast<int>(buffer.size());
        if (program.TextLength(type) == 0 || !program.GetText(buffer.data(), &length, type))
            length = 0;
        texts.push_back(text.Decode(reinterpret_cast<const unsigned char*>(buffer.data()), static_cast<size_t>(length)));
    }
    return texts;
}

} // namespace

Json DescribeSit(const TCSITParser* sit, const TextDecoder& text)
{
    if (sit == nullptr)
        return nullptr;
    Json programs = Json::array();
    for (unsigned int i = 0; sit->Program(i) != nullptr; ++i) {
        const TCSITProgram& p = *sit->Program(i);
        programs.push_back({{"programNumber", p.ProgramNumber()},
                            {"kind", p.ProgramKind()},
                            {"startTime", p.StartTime()},
                            {"flag", p.Flag()},
                            {"code", p.Code()},
                            {"duration", p.Duration()},
                            {"texts", Texts(p, text)}});
    }
    return {{"programCount", sit->ProgramCount()},
            {"descriptorsLength", sit->DescriptorsLength()},
            {"descriptors", DescribeLoop(*sit, text)},
            {"programs", programs}};
}

} // namespace zuminspect
