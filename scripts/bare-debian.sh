# Sourced by scripts that try something in a bare Debian 12. Needs root and debootstrap.
#
#     bare_make NAME [FOLDER [PACKAGE…]]   makes it in FOLDER (default or empty: a new folder under
#                                          /var/tmp), with these packages installed besides
#     inside COMMAND…                      runs something in it
#     inside_install PACKAGE…              installs packages with what they depend on, no more
#     said TEXT                            tells how far NAME has come
#     bare_done                            removes it, unless the folder was named
#
# Mirror and network settings of apt are taken from this machine; nothing else is. The folder is kept
# when something fails.
release=bookworm

said() { echo "$bare_name: $* ($((SECONDS - bare_started)) s so far)"; }

bare_unmount() {
    for place in dev/shm dev proc; do
        if mountpoint -q "$root/$place"; then umount "$root/$place"; fi
    done
}

# Nothing of this machine's environment reaches the inside, except proxy settings.
inside() {
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root TERM=dumb "${bare_proxies[@]}" \
        chroot "$root" "$@" </dev/null
}

inside_install() {
    inside env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$@" \
        >/dev/null
}

bare_make() {
    bare_name=$1
    bare_started=$SECONDS
    ((EUID == 0)) || { echo "$bare_name: needs root" >&2; exit 1; }
    command -v debootstrap >/dev/null || { echo "$bare_name: install debootstrap first" >&2; exit 1; }
    bare_named=${2:-}
    shift "$(($# < 2 ? $# : 2))"
    root=${bare_named:-$(mktemp -d /var/tmp/chronomender-bare.XXXXXX)}
    mkdir -p "$root"
    chmod 755 "$root" # apt reads its lists as a user of its own
    root=$(cd "$root" && pwd)
    trap bare_unmount EXIT

    # "URI SUITE COMPONENT" of every source of this release that this machine's apt uses.
    local targets mirror
    targets=$(apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' | grep " $release" | sort -u)
    mirror=$(awk -v suite="$release" '$2 == suite && $3 == "main" {print $1; exit}' <<<"$targets")
    [[ -n $mirror ]] || { echo "$bare_name: apt has no source for $release" >&2; exit 1; }

    if [[ ! -e $root/usr/bin/apt-get ]]; then
        debootstrap --variant=minbase "$release" "$root" "$mirror" >"$root.debootstrap.log" </dev/null
        rm -f "$root.debootstrap.log"
    fi
    sed 's/^/deb /' <<<"$targets" >"$root/etc/apt/sources.list"
    apt-config dump | grep -E '^Acquire::(http|https|Check)' >"$root/etc/apt/apt.conf.d/99host" || true
    cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
    if [[ -d /usr/local/share/ca-certificates ]]; then
        mkdir -p "$root/usr/local/share/ca-certificates"
        cp -a /usr/local/share/ca-certificates/. "$root/usr/local/share/ca-certificates/"
    fi

    # `minbase` brings only device nodes; the rest of /dev is not wanted.
    mount -t proc proc "$root/proc"
    mkdir -p "$root/dev/shm"
    mount -t tmpfs tmpfs "$root/dev/shm"

    bare_proxies=()
    while IFS= read -r line; do bare_proxies+=("$line"); done \
        < <(env | grep -iE '^(http|https|no)_proxy=' || true)
    inside apt-get update -qq
    if (($#)); then inside_install "$@"; fi
    said "bare $release${*:+ with $*}: $(inside dpkg-query -W -f '.\n' | wc -l) packages"
}

bare_done() {
    bare_unmount
    trap - EXIT
    if [[ -z $bare_named ]]; then rm -rf --one-file-system "$root"; fi
    said "all done"
}
