// socket_local_client and String8 on the host.
#include <cutils/sockets.h>
#include <errno.h>
#include <gtest/gtest.h>
#include <stddef.h>
#include <stdlib.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utils/String8.h>

#include <cstring>
#include <string>

namespace {

// A listening stream socket at an abstract name or a filesystem path.
int listen_at(const std::string& name, bool abstract) {
    sockaddr_un addr{};
    addr.sun_family = AF_UNIX;
    size_t offset = abstract ? 1 : 0;
    memcpy(addr.sun_path + offset, name.data(), name.size());
    socklen_t len = offsetof(sockaddr_un, sun_path) + offset + name.size() + (abstract ? 0 : 1);
    int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(fd, reinterpret_cast<sockaddr*>(&addr), len) != 0 || listen(fd, 4) != 0) {
        close(fd);
        return -1;
    }
    return fd;
}

TEST(HostCutils, ConnectsToAbstractAndFilesystemSockets) {
    std::string name = "vexil.test.cutils." + std::to_string(getpid());
    int server = listen_at(name, true);
    ASSERT_GE(server, 0);
    int fd = socket_local_client(name.c_str(), ANDROID_SOCKET_NAMESPACE_ABSTRACT, SOCK_STREAM);
    ASSERT_GE(fd, 0);
    int accepted = accept(server, nullptr, nullptr);
    ASSERT_GE(accepted, 0);
    ASSERT_EQ(write(fd, "ping", 4), 4);
    char buf[4];
    ASSERT_EQ(read(accepted, buf, 4), 4);
    EXPECT_EQ(std::string(buf, 4), "ping");
    close(fd);
    close(accepted);
    close(server);

    char dir[] = "/tmp/vexil-cutils-XXXXXX";
    ASSERT_NE(mkdtemp(dir), nullptr);
    std::string path = std::string(dir) + "/sock";
    server = listen_at(path, false);
    ASSERT_GE(server, 0);
    fd = socket_local_client(path.c_str(), ANDROID_SOCKET_NAMESPACE_FILESYSTEM, SOCK_STREAM);
    EXPECT_GE(fd, 0);
    close(fd);
    close(server);
    unlink(path.c_str());
    rmdir(dir);
}

TEST(HostCutils, FailuresAreMinusOneWithErrno) {
    std::string absent = "vexil.test.cutils.absent." + std::to_string(getpid());
    struct Case {
        const char* what;
        const char* name;
        int namespace_id;
        int error;
    };
    const std::string too_long(200, 'n');
    const Case cases[] = {
        {"nobody listens", absent.c_str(), ANDROID_SOCKET_NAMESPACE_ABSTRACT, ECONNREFUSED},
        {"name too long", too_long.c_str(), ANDROID_SOCKET_NAMESPACE_ABSTRACT, ENAMETOOLONG},
        {"null name", nullptr, ANDROID_SOCKET_NAMESPACE_ABSTRACT, EINVAL},
        {"unknown namespace", "x", 9, EINVAL},
        {"missing path", "/nonexistent/vexil.sock", ANDROID_SOCKET_NAMESPACE_FILESYSTEM, ENOENT},
    };
    for (const Case& c : cases) {
        errno = 0;
        EXPECT_EQ(socket_local_client(c.name, c.namespace_id, SOCK_STREAM), -1) << c.what;
        EXPECT_EQ(errno, c.error) << c.what;
    }
}

TEST(HostCutils, String8KeepsBytesAndLength) {
    android::String8 empty;
    EXPECT_STREQ(empty.c_str(), "");
    EXPECT_EQ(empty.size(), 0u);
    android::String8 from_null(nullptr);
    EXPECT_STREQ(from_null.string(), "");
    const char text[] = "OK,1\0tail";
    android::String8 counted(text, sizeof(text) - 1);
    EXPECT_EQ(counted.length(), sizeof(text) - 1);
    EXPECT_STREQ(counted.c_str(), "OK,1");
}

}  // namespace
