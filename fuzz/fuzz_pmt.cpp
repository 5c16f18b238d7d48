    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
/    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
/    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
v    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
b    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
y    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
w    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
D    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
w    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
w    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
/    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
/    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
D    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
V    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
B    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
D    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
B    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
A    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
#    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
#    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
#    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
#    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
-    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
/    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
#    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
F    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
#    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
/    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
L    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
L    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
V    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
F    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
O    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
8    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
*    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
1    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
*    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
k    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
[    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
]    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
=    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
G    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
B    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
R    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
B    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
R    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
A    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
J    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
N    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
U    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
A    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
K    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
O    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
R    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
"    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
B    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
y    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
=    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
Z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
k    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
k    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
[    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
[    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
]    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
%    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
5    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
]    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
B    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
Z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
U    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
H    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
[    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
]    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
&    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
8    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
K    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
y    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
1    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
1    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
U    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
E    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
=    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
1    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
w    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
E    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
!    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
:    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
k    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
E    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
S    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
+    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
-    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
2    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
b    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
k    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
h    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
1    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
+    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
&    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
1    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
,    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
=    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
N    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
O    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
+    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
+    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
{    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
C    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
*    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
=    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
O    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
I    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
x    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
=    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
-    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
N    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
O    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
E    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
y    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
+    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
+    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
-    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
P    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
M    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
T    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
E    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
l    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
y    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
_    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
a    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
<    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
g    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
d    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
-    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
>    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
N    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
m    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
O    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
D    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
p    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
(    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
)    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
f    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
+    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
=    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
c    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
o    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
.    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
s    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
i    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
z    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
e    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
t    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
u    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
r    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
n    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
     short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
0    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
;    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
}    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });

    short pid = 0x100;
    zumfuzz::ForEachSection(data + 1, size - 1, 0x02, [&](const zumfuzz::ExactSection& section) {
        pmt.Parse(pid, section.data());
        pid = static_cast<short>(pid ^ 1);
        for (int i = 0; i < pmt.NumOfPMTInstance(); ++i) {
            const TCPMTInstance* program = pmt.PMTInstanceOfIndex(static_cast<unsigned>(i));
            for (int e = 0; e < program->NumOfElementary(); ++e)
                program->PMTElementary(static_cast<unsigned>(e))->NumOfDescriptors();
        }
    });
