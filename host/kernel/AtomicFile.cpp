#include "kernel/AtomicFile.h"

#include "kernel/DataError.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrix::kernel {

namespace {

/* A new file beside another, removed again unless it takes that one's place. */
class FileBeside
{
public:
    explicit FileBeside(std::string file)
        : m_file(std::move(file))
        , m_name(m_file + ".XXXXXX")
        , m_descriptor(mkstemp(m_name.data()))
    {
        expect(m_descriptor >= 0);
    }

    ~FileBeside()
    {
        if (m_descriptor >= 0) {
            close(m_descriptor);
            unlink(m_name.c_str());
        }
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    void write(const std::string& content)
    {
        for (std::size_t done = 0; done < content.size();) {
            const ssize_t written = ::write(m_descriptor, content.data() + done, content.size() - done);
            expect(written >= 0 || errno == EINTR);
            done += written > 0 ? static_cast<std::size_t>(written) : 0;
        }
    }

    void replace()
    {
        struct stat old
        {};
        const mode_t mask = umask(0);
        umask(mask);
        fchmod(m_descriptor, stat(m_file.c_str(), &old) == 0 ? old.st_mode & 0777U : 0666U & ~mask);
        expect(fsync(m_descriptor) == 0);
        expect(rename(m_name.c_str(), m_file.c_str()) == 0);
        close(m_descriptor);
        m_descriptor = -1;
    }

private:
    void expect(bool isDone) const
    {
        if (!isDone) {
            throw DataError("Cannot write \"" + m_file + "\": " + std::strerror(errno) + '.');
        }
    }

    std::string m_file;
    std::string m_name;
    int m_descriptor;
};

} // namespace

void replaceFile(const std::string& file, const std::string& content)
{
    // What a link points to is replaced, not the link.
    std::error_code none;
    const std::filesystem::path target = std::filesystem::canonical(file, none);
    FileBeside beside(none ? file : target.string());
    beside.write(content);
    beside.replace();
}

} // namespace vantrix::kernel
