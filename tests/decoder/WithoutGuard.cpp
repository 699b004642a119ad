// Starts the decoder as on a system without the guards that the macros name: the system calls that
// create them fail as if they did not exist.

#include <linux/seccomp.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cerrno>

int main(int, char** argv) {
    auto* const filter = seccomp_init(SCMP_ACT_ALLOW);
#ifdef WITHOUT_LANDLOCK
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(landlock_create_ruleset), 0);
#endif
#ifdef WITHOUT_SECCOMP
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0);
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1,
                     SCMP_A0(SCMP_CMP_EQ, PR_SET_SECCOMP));
#endif
    if (seccomp_load(filter) != 0) return 1;
    execv(VANTLE_DECODER, argv);
    return 1;
}
