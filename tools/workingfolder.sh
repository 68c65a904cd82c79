# Source this file in scripts that play in a temporary working folder. Set root to the folder of the repository.

# workingfolder FOLDER: creates a working folder like that of a fresh clone.
workingfolder() {
    mkdir -p "$1"/{designs,bmps,nonuser}
    cp -r "$root/datah" "$root/pals" "$1"
}
