#pragma once

#include <filesystem>
#include <fstream>
#include <stdlib.h>
#include <string>

/* A folder of a test's own, removed with everything in it. */
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "vxdataXXXXXX").string();
        m_path = mkdtemp(name.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(m_path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string file(const std::string& name) const { return (m_path / name).string(); }

    std::string write(const std::string& name, const std::string& contents) const
    {
        std::ofstream(file(name), std::ios::binary) << contents;
        return file(name);
    }

private:
    std::filesystem::path m_path;
};
