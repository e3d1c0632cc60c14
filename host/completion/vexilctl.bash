# Bash completion for vexilctl: the command word first, then per command the words its front end
# and handler accept, position by position. Install as bash_completion.d/vexilctl (the device
# image puts it in /vendor/etc/bash_completion.d/), or source it from ~/.bashrc.
#
# Classified commands take only words from the front end's lists (or numbers), so those are all
# that is offered for them; positional arguments (setvexil, setcpreset, setminidump, clear,
# setlogpath) are offered the words their handler acts on.

_vexilctl_commands='man clear collect flush crash state setlog setcomp getcomp getcpcapacity
setcpcapacity getfilesize setfilesize getstor setstor setlogpath getlogpath setoverwrite
getoverwrite setfilenodel getfilenodel setcpreset getcpreset getcprunstate setminidump getminidump
setiolimit getiolimit setmipilog getmipilog setlogpscfg setvexil getallvexilstate setvexiltopc
getvexiltopcstate dbg'

# The words for argument POSITION (1 = the first after the command) of COMMAND, on stdout; the
# word "<dir>" asks for directory names.
_vexilctl_arg_words() {
    local command=$1 position=$2
    local logging='modem wcn gnss pmsh pm sensor agdsp'
    case "$command:$position" in
    state:1 | setlog:1 | getfilesize:1 | setfilesize:1 | getcpcapacity:1 | setcpcapacity:1 | \
        getoverwrite:1 | setoverwrite:1)
        echo "$logging" ;;
    collect:*) echo "$logging all" ;;
    crash:1 | setcomp:1 | getcomp:1 | setcpreset:1 | getcpreset:1 | getcprunstate:1)
        echo 'modem wcn' ;;
    setfilenodel:1 | getfilenodel:1 | setiolimit:1 | getiolimit:1) echo 'modem' ;;
    setvexil:1) echo 'all modem wcn gnss pmsh agdsp' ;;
    setlog:2) echo 'off stor usb wifi' ;;
    setcomp:2) echo 'lz4 none' ;;
    getcpcapacity:2 | setcpcapacity:2) echo 'internal external' ;;
    setstor:1) echo 'data storage external' ;;
    setlogpath:1) echo '<dir>' ;;
    setoverwrite:2 | setfilenodel:2 | setvexiltopc:1) echo 'enable disable' ;;
    setcpreset:2) echo 'on off rstdmp' ;;
    setminidump:1 | setvexil:2) echo 'on off' ;;
    setiolimit:2)
        echo 'avgratio lograte bufsize bufnum logcommitthreshold bufcommitthreshold' ;;
    setlogpscfg:1) echo 'debug user' ;;
    clear:1) echo 'skipboot' ;;
    dbg:1) echo 'strace debuggerd fdinfo' ;;
    esac
}

_vexilctl() {
    local current=${COMP_WORDS[COMP_CWORD]}
    local IFS=$' \t\n'
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W "$_vexilctl_commands" -- "$current"))
        return 0
    fi
    local words
    words=$(_vexilctl_arg_words "${COMP_WORDS[1]}" $((COMP_CWORD - 1)))
    if [[ $words == '<dir>' ]]; then
        compopt -o filenames 2>/dev/null
        COMPREPLY=($(compgen -d -- "$current"))
    elif [[ -n $words ]]; then
        COMPREPLY=($(compgen -W "$words" -- "$current"))
    fi
    return 0
}

complete -F _vexilctl vexilctl
