"""Files of the library and the tool: over 250 lines is worth a look, over 400 is an error."""

from project import cpp_files, finish, place

NOTE, LIMIT = 250, 400


def main():
    faults = []
    for path in cpp_files("include", "src", "platform", "tools"):
        length = path.read_text().count("\n")
        if length > LIMIT:
            faults.append(f"{place(path)} has {length} lines, {LIMIT} is the end")
        elif length > NOTE:
            print(f"file_length: note: {place(path)} has {length} lines, should it be two files?")
    finish("file_length", faults)


if __name__ == "__main__":
    main()
