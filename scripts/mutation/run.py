"""Runs the tests once for each mutant and says which mutants no test notices.

usage: run.py TABLE ACCEPTED RESULTS PROGRAM...

TABLE is what mutate.py wrote, each PROGRAM a test program with its mutants. First each test case runs alone, to see which
mutants it passes and how long it takes. Then, for each mutant, the cases that pass it run, the quickest first, until
one fails, does not end in time, or SECONDS of cases have run. RESULTS gets a row a mutant: what became of it, and its
row of TABLE. ACCEPTED is
a list as explained.py reads it, of the survivors that are let live."""
import collections
import concurrent.futures
import os
import resource
import signal
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir))
import explained  # noqa: E402  (stands beside this folder)

SECONDS = 5.0  # of test cases tried against one mutant
BATCH = 0.12  # seconds of test cases that run in one process
REACH = 0.95  # of all mutants that must be killed
MEMORY = 4 << 30
# Few rounds, always the same ones: a mutant dies of an example or it is said to live.
ENVIRONMENT = os.environ | {'RC_PARAMS': 'seed=7 max_success=25', 'LC_ALL': 'C'}

Case = collections.namedtuple('Case', 'program name seconds reached')


def limit_memory():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(program, names, environment, seconds):
    """Runs test cases of a program in a folder of their own. True when all pass in time."""
    chosen = ','.join(name.replace('\\', '\\\\').replace(',', '\\,') for name in names)
    command = [program, f'--test-case={chosen}', '--abort-after=1', '--no-colors']
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        process = subprocess.Popen(command, env=ENVIRONMENT | environment, cwd=folder, stdin=subprocess.DEVNULL,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                   start_new_session=True, preexec_fn=limit_memory)
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()


def cases_of(program):
    listed = subprocess.run([program, '--list-test-cases', '--no-colors'], env=ENVIRONMENT, check=True,
                            capture_output=True, text=True).stdout
    return [line for line in listed.splitlines() if not line.startswith(('[doctest]', '==='))]


def trace(job):
    """Runs one case with no mutant alive. None when it does not pass."""
    program, name = job
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, 'reached')
        open(path, 'w', encoding='ascii').close()
        begin = time.monotonic()
        passes = run(program, [name], {'MUTANT': 'trace', 'MUTANT_TRACE': path}, 300)
        seconds = time.monotonic() - begin
        with open(path, encoding='ascii') as file:
            reached = {int(line) for line in file if line.strip().isdigit()}
    return Case(program, name, seconds, reached) if passes else None


def traced_cases(programs, pool):
    jobs = [(path, name) for path in map(os.path.abspath, programs) for name in cases_of(path)]
    cases = []
    for job, case in zip(jobs, pool.map(trace, jobs)):
        if case is None:
            print(f'left out, as it fails with no mutant alive: {job[1]}')
        else:
            cases.append(case)
    return cases


def batches(cases):
    """The cases in runs of one program, the quickest and most particular ones first."""
    found, total = [], 0.0
    for case in sorted(cases, key=lambda case: case.seconds * (1 + len(case.reached) / 200)):
        if total > SECONDS:
            break
        total += case.seconds
        last = found[-1] if found else None
        if last and last[0] == case.program and last[2] + case.seconds < BATCH:
            last[1].append(case.name)
            last[2] += case.seconds
        else:
            found.append([case.program, [case.name], case.seconds])
    return found


def verdict(number, cases):
    if not cases:
        return 'unreached'
    for program, names, seconds in batches(cases):
        if not run(program, names, {'MUTANT': str(number)}, 2 + 10 * seconds):
            return 'killed'
    return 'survived'


def label(row):
    """Names a mutant without its number and line, which other changes move."""
    return f'{row[1]}: {row[3]}: {row[4]}'


def main():
    table, accepted_path, results_path, *programs = sys.argv[1:]
    with open(table, encoding='utf-8') as file:
        rows = [line.rstrip('\n').split('\t') for line in file]
    begin = time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        cases = traced_cases(programs, pool)
        print(f'{len(cases)} test cases traced in {time.monotonic() - begin:.0f} s', flush=True)
        passing = collections.defaultdict(list)
        for case in cases:
            for number in case.reached:
                passing[number].append(case)
        verdicts = pool.map(lambda row: verdict(int(row[0]), passing[int(row[0])]), rows)
        with open(results_path, 'w', encoding='utf-8') as results:
            count = collections.Counter()
            for row, result in zip(rows, verdicts):
                count[result] += 1
                results.write('\t'.join([result] + row) + '\n')
                results.flush()
    report(rows, results_path, accepted_path, count)
    print(f'{time.monotonic() - begin:.0f} s')


def report(rows, results_path, accepted_path, count):
    with open(results_path, encoding='utf-8') as file:
        alive = [line.rstrip('\n').split('\t') for line in file if not line.startswith('killed')]
    files = {row[1] for row in rows}
    unexplained, needless = explained.compare([label(row[1:]) for row in alive], accepted_path,
                                              lambda name: name.split(': ')[0] in files)
    for row in alive:
        if label(row[1:]) in set(unexplained):
            print(f'{row[2]}:{row[3]}: {row[0]}: {row[4]}: {row[5]}')
    for name in needless:
        print(f'{accepted_path}: is killed after all: {name}')
    print(f'{len(rows)} mutants: {dict(count)}, {count["killed"] / len(rows):.1%} killed, '
          f'{len(unexplained)} neither killed nor explained')
    if unexplained or needless or count['killed'] < REACH * len(rows):
        sys.exit(1)


if __name__ == '__main__':
    main()
