"""The steps of a new airport: named, typed from the first key to the last field, saved, and found after a restart."""

import shutil

from accessible import expect
from disk import CODE_PAGE, ENTRIES, ICAO_CODE, Airport
from screen import press, write

NAME, CODE = "PROVA", "LIZZ"
EMPTY = "---"
# Typed in the order of the Tab key: the code, the general data, the navigation aids, the first runway's first end.
TYPED = {38: "lizz", 37: "6000", 0: "e009 16.6", 1: "n45,26", 2: "353", 33: "tes", 34: "115.30", 35: "", 36: "",
         3: "09l", 4: "2500", 5: "abc", 6: "109.50", 7: "090"}
DERIVED = {8: "27", 9: "2500"}  # the runway's second end


def record():
    values = {**{position: text.upper() for position, text in TYPED.items()}, **DERIVED}
    return [values.get(position) or "" for position in range(ENTRIES)]


def type_a_new_airport(stage):
    main = stage.main
    with stage.step("after a restart, a name that the archive lacks is asked about"):
        stage.program.start()
        main.expect_search()
        main.search(NAME.lower())
        main.choose("cmdElabora")
        main.answer("0013", "0014", "0102")
    with stage.step("its folders are there, and the ICAO code has the keyboard"):
        expect("ICAO code with the keyboard", lambda: main.entry_field(ICAO_CODE).focused, True)
        folders = {path.name for path in (stage.program.folder / "aeroporti" / NAME).iterdir()}
        expect("folders", lambda: folders, {"Sid", "Star", "Approach", "Aeroporto"})
    with stage.step("the fields are typed one after the other; the runway's second end fills itself in"):
        for text in TYPED.values():
            write(text)
            press("Tab")
        expect("values on show", main.record, record())
        stage.keep("11-nuovo-aeroporto")
    with stage.step("a first designator above 18 is refused, and the keyboard stays there"):
        second = "13"  # the first end of the second runway
        for _ in range(int(second) - 8):
            press("Tab")
        write("27")
        press("Tab")
        main.answer("0033", "0034", "0102")
        expect("field with the keyboard", lambda: main.entry_field(int(second)).focused, True)
        expect("values on show", main.record, record())


def save_it(stage):
    airport = Airport(stage.program.folder, NAME)
    with stage.step("saving asks, says that it is done, and ends the program"):
        stage.main.choose("cmdSave")
        stage.main.answer("0027", "0028", "0102")
        stage.main.answer("0029", "0030", "0102")
        stage.program.expect_end()
    with stage.step("the data file holds the 39 lines, the presenter text file is there and empty"):
        wanted = "".join(f'"{text or EMPTY}"\r\n' for text in record()).encode(CODE_PAGE)
        expect("data file", airport.data_file().read_bytes, wanted)
        expect("presenter text", airport.presenter_text(CODE).read_bytes, b"")


def find_it_again(stage):
    airport = Airport(stage.program.folder, NAME)
    with stage.step("with a picture put beside it, the airport is found and opened at the next start"):
        shutil.copy2(stage.airport.picture(), airport.picture())
        stage.program.start()
        stage.main.search(NAME[:2].lower())
        stage.main.open_from_list(NAME)
        expect("values on show", stage.main.record, [text or EMPTY for text in record()])
        stage.main.close_box()
        stage.program.expect_end()
