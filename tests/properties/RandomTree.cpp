#include "RandomTree.h"

#include "platform/folders/FileDescriptor.h"

#include <array>
#include <fcntl.h>
#include <ostream>
#include <sys/stat.h>
#include <unistd.h>

namespace drossbin::test {

namespace {

using Kind = TreeStep::Kind;

std::string nameOf(std::size_t number) {
    static const std::array<std::string, 10> odd{
        "a",        "b",   " ",       "-rf",  "two\nlines",
        "\xFF\xC0", "...", ".hidden", "\\*~", std::string(255, 'n')};
    return odd.at(number % odd.size());
}

// By its descriptor alone: a link that has the path already must lead nobody out of the tree.
void makeFile(const std::string& path, off_t size, mode_t mode) {
    const FileDescriptor file(::open(path.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0644));
    if (file.isOpen()) {
        (void)!::ftruncate(file.get(), size);
        (void)!::fchmod(file.get(), mode);
    }
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const TreeStep& step) {
    return stream << "{kind " << static_cast<int>(step.kind) << ", parent " << step.parent
                  << ", name " << step.name << ", target " << step.target << ", mode " << step.mode
                  << '}';
}

void makeTree(const std::string& root, const std::vector<TreeStep>& steps) {
    std::vector<std::string> folders{root};
    std::vector<std::string> all{root, "..", "nothing"};
    for (const TreeStep& step : steps) {
        const std::string path = folders[step.parent % folders.size()] + "/" + nameOf(step.name);
        const std::string& target = all[step.target % all.size()];
        switch (step.kind) {
        case Kind::folder:
            if (::mkdir(path.c_str(), 0755) == 0) {
                folders.push_back(path);
            }
            break;
        case Kind::file:
            makeFile(path, step.mode, step.mode);
            break;
        case Kind::sparseFile:
            makeFile(path, off_t{step.mode} * 1'000'000'000, 0644);
            break;
        case Kind::link:
            (void)!::symlink(target.c_str(), path.c_str());
            break;
        case Kind::hardLink:
            (void)!::link(target.c_str(), path.c_str());
            break;
        case Kind::pipe:
            ::mkfifo(path.c_str(), 0644);
            break;
        }
        all.push_back(path);
    }
}

} // namespace drossbin::test

namespace rc {

using drossbin::test::TreeStep;

Gen<TreeStep> Arbitrary<TreeStep>::arbitrary() {
    using Kind = TreeStep::Kind;
    return gen::build<TreeStep>(
        gen::set(&TreeStep::kind,
                 gen::element(Kind::folder, Kind::folder, Kind::file, Kind::sparseFile, Kind::link,
                              Kind::hardLink, Kind::pipe)),
        gen::set(&TreeStep::parent, gen::inRange<std::size_t>(0, 50)),
        gen::set(&TreeStep::name, gen::inRange<std::size_t>(0, 10)),
        gen::set(&TreeStep::target, gen::inRange<std::size_t>(0, 50)),
        gen::set(&TreeStep::mode, gen::inRange<std::uint32_t>(0, 4'096)));
}

} // namespace rc
