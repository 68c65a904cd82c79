# Sourced by scripts that play in a folder of their own. root: the repository's.

# workingfolder FOLDER: makes it a working folder as a fresh clone has it.
workingfolder() {
    mkdir -p "$1"/{designs,bmps,nonuser}
    cp -r "$root/datah" "$root/pals" "$1"
}
