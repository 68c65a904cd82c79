# To be sourced by scripts that play in a temporary working folder. root must be the folder of the repository.

# workingfolder FOLDER: makes FOLDER a working folder like that of a fresh clone.
workingfolder() {
    mkdir -p "$1"/{designs,bmps,nonuser}
    cp -r "$root/datah" "$root/pals" "$1"
}
