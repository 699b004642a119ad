# shellcheck shell=bash
# Functions that ./run, ./test and .ci/run share. Bash scripts source this file.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
logs=$root/build/logs

if [[ -t 1 ]]; then
  bold=$'\e[1m' red=$'\e[31m' plain=$'\e[0m'
else
  bold='' red='' plain=''
fi

say() { printf '%s==>%s %s\n' "$bold" "$plain" "$*"; }

# explain_if_asked ARGUMENTS...: for --help, shows the comment at the top of the script and exits.
explain_if_asked() {
  if [[ ${1-} != --help && ${1-} != -h ]]; then return; fi
  sed -n '2,/^[^#]/s/^# \{0,1\}//p' "$0"
  exit 0
}

# Prints an error and exits. The first argument says what is wrong, the others what to do about it.
fail() {
  printf '%sError:%s %s\n' "$red" "$plain" "$1" >&2
  shift
  if (($#)); then printf '  %s\n' "$@" >&2; fi
  exit 1
}

# Prints the end of a log file, then fails with the other arguments.
fail_with_log() {
  local log=$1
  shift
  if [[ -s $log ]]; then
    printf '%s\n' "--- the end of $log ---" >&2
    tail -n 40 "$log" >&2
    printf '%s\n' '---' >&2
  fi
  fail "$@"
}

# package_lines LIST...: prints the lines "name reason" of the lists, without comments.
package_lines() {
  local list
  for list in "$@"; do
    sed -E '/^[[:space:]]*(#|$)/d' "$root/scripts/packages/$list.list"
  done
}

is_installed() {
  [[ $(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# is_known PACKAGE: succeeds if the package lists of the latest update have the package.
is_known() { apt-cache show "$1" >/dev/null 2>&1; }

# missing_packages LIST...: prints the lines "name reason" of listed packages that are not
# installed. A package whose name ends with a question mark counts only if this release has it.
missing_packages() {
  local name reason
  while read -r name reason; do
    if is_installed "${name%\?}"; then continue; fi
    if [[ $name == *\? ]] && ! is_known "${name%\?}"; then continue; fi
    printf '%-32s %s\n' "${name%\?}" "$reason"
  done < <(package_lines "$@")
}

# Runs a command as root, with sudo if needed. Without a terminal sudo must not ask.
as_root() {
  if ((EUID == 0)); then
    "$@"
  elif [[ -t 0 && -z ${CI-} ]]; then
    sudo -- "$@"
  else
    sudo -n -- "$@"
  fi
}

require_apt() {
  if command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; then return; fi
  fail "Packages can be installed only on Debian and Ubuntu: this system has no apt-get." \
    "Install your system's counterparts of the packages named in scripts/packages/*.list," \
    "then start again with VANTLE_SKIP_PACKAGES=1."
}

require_root() {
  if ((EUID == 0)); then return; fi
  command -v sudo >/dev/null || fail "Installing needs root rights, and this system has no sudo." \
    "As root, run:  apt-get update && apt-get install --no-install-recommends $*"
  as_root true || fail "sudo did not give root rights." \
    "As root, run:  apt-get update && apt-get install --no-install-recommends $*"
}

# Reads what apt-get writes, keeps it in a log, and shows every quarter of the progress in its
# status lines ("pmstatus:package:percent:text").
follow_apt() {
  local log=$1 line kind percent stage='' shown=-1 quarter
  while IFS= read -r line; do
    case $line in
    dlstatus:*) kind=downloading ;;
    pmstatus:*) kind=installing ;;
    *)
      printf '%s\n' "$line" >>"$log"
      continue
      ;;
    esac
    percent=$(cut -d : -f 3 <<<"$line")
    quarter=$((${percent%%.*} / 25))
    if [[ $kind != "$stage" ]] || ((quarter > shown)); then
      printf '    %s: %d %%\n' "$kind" $((quarter * 25))
      stage=$kind shown=$quarter
    fi
  done
}

# The status lines share standard output with the rest, because sudo closes every other descriptor.
run_apt_install() {
  local log=$1
  shift
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends \
    -o DPkg::Lock::Timeout=300 -o APT::Status-Fd=1 "$@" 2>&1 </dev/null | follow_apt "$log"
}

# install_missing LIST...: installs the listed packages that are not installed.
install_missing() {
  if [[ -n ${VANTLE_SKIP_PACKAGES-} ]]; then return; fi
  require_apt
  local lines
  mapfile -t lines < <(missing_packages "$@")
  if ((${#lines[@]} == 0)); then return; fi

  require_root "${lines[@]%% *}"
  update_package_lists
  # Only after the update is it certain which packages this release has.
  mapfile -t lines < <(missing_packages "$@")
  say "Installing ${#lines[@]} missing packages and their dependencies:"
  printf '    %s\n' "${lines[@]}"
  install_known "${lines[@]%% *}"
}

install_packages() {
  update_package_lists
  install_known "$@"
}

update_package_lists() {
  mkdir -p "$logs"
  # The mirror that failed may not be one that has these packages: the installation decides.
  as_root apt-get update -q >"$logs/apt-update.log" 2>&1 </dev/null ||
    say "apt-get update failed; trying with the previous package lists."
}

install_known() {
  local log=$logs/apt.log started=$SECONDS
  : >"$log"
  if ! run_apt_install "$log" "$@"; then
    fail_with_log "$log" "apt-get could not install the missing packages." \
      "Check the network connection and /etc/apt/sources.list, then run this again." \
      "Vantle needs Debian 12, Debian 13, Ubuntu 24.04 or newer."
  fi
  say "Installed in $((SECONDS - started)) s."
}

require_cmake() {
  local found
  command -v cmake >/dev/null || fail "cmake is missing." "Install CMake 3.25 or newer."
  found=$(cmake --version | sed -nE '1s/.* ([0-9]+\.[0-9]+).*/\1/p')
  if [[ $(printf '%s\n' 3.25 "$found" | sort -V | head -n 1) != 3.25 ]]; then
    fail "CMake $found is too old: 3.25 or newer is needed." \
      "Debian 12, Ubuntu 24.04 and later have it. Elsewhere put a newer cmake first on the PATH."
  fi
}

# build PRESET [ARGUMENTS...]: configures and builds a preset of CMakePresets.json; passes the
# arguments to the build.
build() {
  local preset=$1 started=$SECONDS log=$logs/$1-configure.log
  shift
  require_cmake
  mkdir -p "$logs"
  say "Building the preset $preset"
  (cd "$root" && cmake --preset "$preset") >"$log" 2>&1 </dev/null ||
    fail_with_log "$log" "The preset $preset could not be configured." \
      "The message above says what is missing. After an update of the system, remove" \
      "build/$preset and run this again."
  (cd "$root" && cmake --build --preset "$preset" --parallel "$(build_jobs)" "$@") </dev/null ||
    fail "The preset $preset could not be built." "The compiler's message is above."
  say "Built $preset in $((SECONDS - started)) s."
}

build_jobs() { nproc 2>/dev/null || echo 2; }
