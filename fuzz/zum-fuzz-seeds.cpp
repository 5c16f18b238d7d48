// Writes seed inputs for the fuzz targets from real streams: every section of
// the given transport streams and section files goes, through the inspector's
// demultiplexer, to the targets that fuzz/targets.txt maps its table id and
// PID to, shaped as each target reads its input.
//
//   zum-fuzz-seeds TARGETS_TXT OUT_DIR FILE...
//
// writes OUT_DIR/<target>/<hash of the input> and prints how many per target.

#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "inspect/TsDemux.h"

namespace {

using Bytes = std::vector<uint8_t>;

// libFuzzer's -max_len in the short pass and the campaign.
constexpr size_t kMaxInput = 4200;
// Windows of a stream, at most, so that a long capture does not drown the rest.
constexpr size_t kMaxWindows = 48;
constexpr size_t kMaxRunsPerTable = 24;

struct Seed {
    enum Kind { Sections, Loops, Stream } kind = Sections;
    bool anyTable = false;
    std::set<uint8_t> tables;
    Bytes prefix;
    Bytes each;
};

struct Row {
    std::string target;
    bool anyPid = false;
    std::set<uint16_t> pids;
    std::vector<Seed> seeds;
};

struct Section {
    uint16_t pid;
    Bytes bytes;
};

// What one file holds: its sections, and for a stream its section-bearing packets.
struct Input {
    std::vector<Section> sections;
    std::vector<Bytes> packets;
};

Bytes Hex(const std::string& text)
{
    Bytes out;
    for (size_t i = 0; i + 1 < text.size(); i += 2)
        out.push_back(static_cast<uint8_t>(std::stoul(text.substr(i, 2), nullptr, 16)));
    return out;
}

std::vector<std::string> Split(const std::string& text, char by)
{
    std::vector<std::string> parts;
    std::stringstream in(text);
    for (std::string part; std::getline(in, part, by);)
        parts.push_back(part);
    return parts;
}

Seed ParseSeed(const std::string& word)
{
    Seed seed;
    const size_t colon = word.find(':');
    const std::string tables = word.substr(0, colon);
    std::string shape = colon == std::string::npos ? "" : word.substr(colon + 1);
    if (tables == "ts")
        seed.kind = Seed::Stream;
    else if (tables == "*")
        seed.anyTable = true;
    else
        for (const std::string& id : Split(tables, ','))
            seed.tables.insert(static_cast<uint8_t>(std::stoul(id, nullptr, 16)));
    if (!shape.empty() && shape[0] == '@') {
        seed.kind = Seed::Loops;
        shape.erase(0, 1);
    }
    const size_t slash = shape.find('/');
    seed.prefix = Hex(shape.substr(0, slash));
    if (slash != std::string::npos)
        seed.each = Hex(shape.substr(slash + 1));
    return seed;
}

std::vector<Row> ReadTargets(const std::string& path)
{
    std::vector<Row> rows;
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);) {
        std::istringstream words(line);
        Row row;
        std::string dictionaries, pids, word;
        if (!(words >> row.target >> dictionaries >> pids) || row.target[0] == '#')
            continue;
        for (const std::string& pid : Split(pids, ',')) {
            if (pid == "*")
                row.anyPid = true;
            else
                row.pids.insert(static_cast<uint16_t>(std::stoul(pid, nullptr, 16)));
        }
        while (words >> word)
            row.seeds.push_back(ParseSeed(word));
        rows.push_back(row);
    }
    return rows;
}

Input ReadInput(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const Bytes data((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    Input input;
    const zuminspect::InputKind kind = zuminspect::DetectInputKind(data.data(), data.size());
    zuminspect::TsDemux demux(
        [&input](uint16_t pid, const uint8_t* section, size_t size) {
            input.sections.push_back({pid, Bytes(section, section + size)});
        },
        kind);
    demux.Feed(data.data(), data.size());
    demux.Finish();
    // Windows are cut from 188-byte packets that start the file; PES packets are left out.
    const zuminspect::DemuxStats& stats = demux.Stats();
    if (kind == zuminspect::InputKind::TransportStream && stats.packetSize == zuminspect::kPacketSize &&
        !data.empty() && data[0] == zuminspect::kSyncByte)
        for (size_t at = 0; at + zuminspect::kPacketSize <= data.size(); at += zuminspect::kPacketSize) {
            const uint16_t pid = static_cast<uint16_t>(((data[at + 1] & 0x1F) << 8) | data[at + 2]);
            const auto it = stats.pids.find(pid);
            if (it != stats.pids.end() && (it->second.sections > 0 || it->second.crcErrors > 0))
                input.packets.emplace_back(data.begin() + at, data.begin() + at + zuminspect::kPacketSize);
        }
    return input;
}

unsigned Be16(const Bytes& s, size_t at) { return static_cast<unsigned>((s[at] << 8) | s[at + 1]); }

// The descriptor loops of a section whose layout is known: offset and length
// pairs, each within the section before its CRC_32.
std::vector<std::pair<size_t, size_t>> Loops(const Bytes& s)
{
    std::vector<std::pair<size_t, size_t>> loops;
    if (s.size() < 12)
        return loops;
    const size_t end = s.size() - 4;
    auto add = [&](size_t at, size_t length) {
        if (at <= end && length <= end - at)
            loops.emplace_back(at, length);
        return at + length;
    };
    const uint8_t tid = s[0];
    if (tid == 0x01) {
        add(8, end - 8);
    } else if (tid == 0x02 && end >= 12) {
        size_t at = add(12, Be16(s, 10) & 0x0FFF);
        while (at + 5 <= end)
            at = add(at + 5, Be16(s, at + 3) & 0x0FFF);
    } else if (tid == 0x40 || tid == 0x41 || tid == 0x4A) {
        size_t at = add(10, Be16(s, 8) & 0x0FFF) + 2;
        while (at + 6 <= end)
            at = add(at + 6, Be16(s, at + 4) & 0x0FFF);
    } else if (tid == 0x42 || tid == 0x46) {
        for (size_t at = 11; at + 5 <= end;)
            at = add(at + 5, Be16(s, at + 3) & 0x0FFF);
    } else if (tid >= 0x4E && tid <= 0x6F) {
        for (size_t at = 14; at + 12 <= end;)
            at = add(at + 12, Be16(s, at + 10) & 0x0FFF);
    } else if (tid == 0x73 && end >= 10) {
        add(10, Be16(s, 8) & 0x0FFF);
    } else if (tid == 0x74 && end >= 10) {
        size_t at = add(10, Be16(s, 8) & 0x0FFF) + 2;
        while (at + 9 <= end)
            at = add(at + 9, Be16(s, at + 7) & 0x0FFF);
    } else if ((tid == 0xC8 || tid == 0xC9) && end >= 10) {
        size_t at = 10;
        for (unsigned n = s[9]; n > 0 && at + 32 <= end; --n)
            at = add(at + 32, Be16(s, at + 30) & 0x03FF);
    } else if (tid == 0xCB && end >= 10) {
        size_t at = 10;
        for (unsigned n = s[9]; n > 0 && at + 10 <= end; --n) {
            const size_t title = at + 10 + s[at + 9];
            if (title + 2 > end)
                break;
            at = add(title + 2, Be16(s, title) & 0x0FFF);
        }
    }
    return loops;
}

class Writer {
public:
    explicit Writer(std::string dir) : m_dir(std::move(dir)) {}

    void Add(const std::string& target, const Bytes& input)
    {
        if (input.empty() || input.size() > kMaxInput)
            return;
        // FNV-1a names the input by its bytes, so that repeats collapse.
        uint64_t hash = 1469598103934665603ull;
        for (uint8_t b : input)
            hash = (hash ^ b) * 1099511628211ull;
        char name[17];
        std::snprintf(name, sizeof name, "%016llx", static_cast<unsigned long long>(hash));
        const std::string dir = m_dir + "/" + target;
        ::mkdir(dir.c_str(), 0755);
        if (m_written[target].insert(name).second) {
            std::ofstream out(dir + "/" + name, std::ios::binary);
            out.write(reinterpret_cast<const char*>(input.data()), static_cast<std::streamsize>(input.size()));
        }
    }

    const std::map<std::string, std::set<std::string>>& Written() const { return m_written; }

private:
    std::string m_dir;
    std::map<std::string, std::set<std::string>> m_written;
};

bool Matches(const Row& row, const Seed& seed, const Section& section)
{
    const bool pid = row.anyPid || section.pid == zuminspect::kNoPid || row.pids.count(section.pid) > 0;
    return pid && (seed.anyTable || seed.tables.count(section.bytes[0]) > 0);
}

Bytes Shaped(const Seed& seed, const std::vector<const Bytes*>& sections)
{
    Bytes input = seed.prefix;
    for (const Bytes* s : sections) {
        input.insert(input.end(), seed.each.begin(), seed.each.end());
        input.insert(input.end(), s->begin(), s->end());
    }
    return input;
}

void SeedSections(Writer& out, const Row& row, const Seed& seed, const Input& input)
{
    // Each section alone, and runs of consecutive ones per PID and table id,
    // so that section and version tracking start from real sequences.
    std::map<std::pair<uint16_t, uint8_t>, std::vector<const Bytes*>> runs;
    for (const Section& section : input.sections) {
        if (!Matches(row, seed, section))
            continue;
        out.Add(row.target, Shaped(seed, {&section.bytes}));
        runs[{section.pid, section.bytes[0]}].push_back(&section.bytes);
    }
    for (const auto& entry : runs) {
        std::vector<const Bytes*> run;
        size_t size = seed.prefix.size(), made = 0;
        for (const Bytes* s : entry.second) {
            if (size + seed.each.size() + s->size() > kMaxInput && !run.empty()) {
                if (run.size() > 1 && made++ < kMaxRunsPerTable)
                    out.Add(row.target, Shaped(seed, run));
                run.clear();
                size = seed.prefix.size();
            }
            run.push_back(s);
            size += seed.each.size() + s->size();
        }
        if (run.size() > 1 && made < kMaxRunsPerTable)
            out.Add(row.target, Shaped(seed, run));
    }
}

void SeedLoops(Writer& out, const Row& row, const Seed& seed, const Input& input)
{
    for (const Section& section : input.sections) {
        if (!Matches(row, seed, section))
            continue;
        for (const auto& loop : Loops(section.bytes)) {
            Bytes one = seed.prefix;
            one.insert(one.end(), section.bytes.begin() + static_cast<std::ptrdiff_t>(loop.first),
                       section.bytes.begin() + static_cast<std::ptrdiff_t>(loop.first + loop.second));
            out.Add(row.target, one);
        }
    }
}

void SeedStream(Writer& out, const Row& row, const Seed& seed, const Input& input)
{
    // Of a section file, runs of its sections; of a stream, windows of its
    // packets spread over the whole stream.
    std::vector<Bytes> units = input.packets;
    if (units.empty())
        for (const Section& section : input.sections)
            units.push_back(section.bytes);
    size_t windows = 0;
    for (size_t first = 0; first < units.size() && windows < kMaxWindows; ++windows) {
        Bytes input = seed.prefix;
        size_t next = first;
        for (; next < units.size() && input.size() + units[next].size() <= kMaxInput; ++next)
            input.insert(input.end(), units[next].begin(), units[next].end());
        out.Add(row.target, input);
        const size_t stride = std::max<size_t>(next - first, units.size() / kMaxWindows);
        first += std::max<size_t>(stride, 1);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::cerr << "usage: zum-fuzz-seeds TARGETS_TXT OUT_DIR FILE...\n";
        return 2;
    }
    const std::vector<Row> rows = ReadTargets(argv[1]);
    Writer out(argv[2]);
    ::mkdir(argv[2], 0755);
    for (int i = 3; i < argc; ++i) {
        const Input input = ReadInput(argv[i]);
        for (const Row& row : rows)
            for (const Seed& seed : row.seeds) {
                if (seed.kind == Seed::Stream)
                    SeedStream(out, row, seed, input);
                else if (seed.kind == Seed::Loops)
                    SeedLoops(out, row, seed, input);
                else
                    SeedSections(out, row, seed, input);
            }
    }
    std::set<std::string> told;
    for (const Row& row : rows)
        if (told.insert(row.target).second) {
            const auto it = out.Written().find(row.target);
            std::cout << row.target << " " << (it == out.Written().end() ? 0 : it->second.size()) << "\n";
        }
    return 0;
}
